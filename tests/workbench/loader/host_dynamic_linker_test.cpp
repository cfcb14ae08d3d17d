#include "workbench/loader/host_dynamic_linker.h"

#include "tests/workbench/loader/loader_fixture.h"

#include <hostapi/window/module.h>

namespace workbench {

class HostDynamicLinkerTest : public LoaderTest {
protected:
    VxRxDynamicLinker* linker() {
        return dynamic_cast<VxRxDynamicLinker*>(vxrxSysRegistry()->at(L"DynamicLinker"));
    }
};

TEST_F(HostDynamicLinkerTest, OnlyAPacketOfALoadedModuleIsKnown) {
    int foreign = 0;
    EXPECT_FALSE(linker()->unlockApplication(&foreign));
    EXPECT_FALSE(linker()->registerAppMDIAware(&foreign));
    EXPECT_FALSE(linker()->unlockApplication(nullptr));
}

TEST_F(HostDynamicLinkerTest, SymbolsAreFoundThroughTheServicesModule) {
    EXPECT_EQ(linker()->getSymbolAddress(kService, "VxTpShowScheme"), nullptr);
    EXPECT_TRUE(linker()->loadModule(kModule, 0, 1));
    EXPECT_EQ(linker()->getSymbolAddress(kService, "VxTpShowScheme"),
              GetProcAddress(GetModuleHandle(kModule), "VxTpShowScheme"));
    EXPECT_NE(linker()->getSymbolAddress(kService, "VxTpShowScheme"), nullptr);
    EXPECT_EQ(linker()->getSymbolAddress(kService, "nothing"), nullptr);

    faults().hide("VxTp.qlx", "VxTpShowScheme");
    EXPECT_EQ(linker()->getSymbolAddress(kService, "VxTpShowScheme"), nullptr);
}

TEST_F(HostDynamicLinkerTest, AServiceOfTheHostHasNoSymbols) {
    vxrxRegisterService(L"HostService");
    EXPECT_EQ(linker()->getSymbolAddress(L"HostService", "VxTpShowScheme"), nullptr);
}

TEST_F(HostDynamicLinkerTest, TheCallsCanBeToldToFail) {
    faults().fail("VxRxDynamicLinker::loadModule", {}, 1);
    EXPECT_FALSE(linker()->loadModule(kModule, 1, 0));
    EXPECT_TRUE(linker()->loadModule(kModule, 1, 0));
    faults().fail("VxRxDynamicLinker::getSymbolAddress", {}, 1);
    EXPECT_EQ(linker()->getSymbolAddress(kService, "VxTpShowScheme"), nullptr);
}

}  // namespace workbench
