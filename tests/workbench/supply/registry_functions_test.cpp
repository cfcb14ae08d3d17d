#include "tests/workbench/loader/loader_fixture.h"

#include <hostapi/vxdb18.h>

namespace workbench {

using RegistryFunctionsTest = LoaderTest;

TEST_F(RegistryFunctionsTest, AServiceIsKnownOnceItIsRegistered) {
    EXPECT_FALSE(vxrxServiceIsRegistered(L"TestService"));
    vxrxRegisterService(L"TestService");
    EXPECT_TRUE(vxrxServiceIsRegistered(L"TestService"));
    EXPECT_FALSE(vxrxServiceIsRegistered(L"testservice"));
}

TEST_F(RegistryFunctionsTest, AModuleIsLoadedByItsFile) {
    EXPECT_TRUE(vxrxLoadModule(kModule, false, true));
    EXPECT_TRUE(vxrxServiceIsRegistered(kService));
    EXPECT_FALSE(vxrxLoadModule(L"VxNothing.qlx", false, true));
}

TEST_F(RegistryFunctionsTest, NullNamesAreNobodys) {
    vxrxRegisterService(nullptr);
    EXPECT_FALSE(vxrxServiceIsRegistered(nullptr));
    EXPECT_FALSE(vxrxLoadModule(nullptr, false, true));
}

TEST_F(RegistryFunctionsTest, TheCallsCanBeToldToFail) {
    faults().fail("vxrxRegisterService", {}, 1);
    vxrxRegisterService(L"TestService");
    EXPECT_FALSE(vxrxServiceIsRegistered(L"TestService"));
    vxrxRegisterService(L"TestService");
    faults().fail("vxrxServiceIsRegistered", {}, 1);
    EXPECT_FALSE(vxrxServiceIsRegistered(L"TestService"));
    faults().fail("vxrxLoadModule", {}, 1);
    EXPECT_FALSE(vxrxLoadModule(kModule, false, true));
    faults().fail("vxrxSysRegistry", {}, 1);
    EXPECT_EQ(vxrxSysRegistry(), nullptr);
    EXPECT_NE(vxrxSysRegistry(), nullptr);
}

}  // namespace workbench
