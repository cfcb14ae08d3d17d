#include "workbench/loader/host_module.h"

#include "tests/workbench/loader/loader_fixture.h"

#include <string>

namespace workbench {

class HostModuleTest : public LoaderTest {
protected:
    std::unique_ptr<HostModule> recognize(const wchar_t* file) {
        reason.clear();
        return HostModule::recognize(libraries(), libraries().load(file), reason);
    }

    std::string reason;
};

TEST_F(HostModuleTest, ALibraryWithHandshakeAndEntryPointIsAModule) {
    const std::unique_ptr<HostModule> module = recognize(kModule);
    ASSERT_NE(module, nullptr);
    EXPECT_EQ(module->library(), libraries().find(kModule));
    EXPECT_FALSE(module->isUnlocked());
    EXPECT_FALSE(module->isMdiAware());
    EXPECT_EQ(reason, "");
}

TEST_F(HostModuleTest, ALibraryWithoutHandshakeIsNoModule) {
    EXPECT_EQ(recognize(kResources), nullptr);
    EXPECT_NE(reason.find("vxrxGetApiVersion"), std::string::npos);
}

TEST_F(HostModuleTest, AModuleWithoutEntryPointIsNoModule) {
    faults().hide("VxTp.qlx", "vxrxEntryPoint");
    EXPECT_EQ(recognize(kModule), nullptr);
    EXPECT_NE(reason.find("vxrxEntryPoint"), std::string::npos);
}

TEST_F(HostModuleTest, AMessageThatAModuleDoesNotKnowIsAnsweredWith0) {
    const std::unique_ptr<HostModule> module = recognize(kModule);
    ASSERT_NE(module, nullptr);
    EXPECT_EQ(module->send(static_cast<VxRxMessage>(99)), 0);
    EXPECT_FALSE(vxrxServiceIsRegistered(kService));
}

}  // namespace workbench
