#include "workbench/loader/module_loader.h"

#include "tests/workbench/loader/loader_fixture.h"
#include "workbench/base/turn.h"

#include <string>

namespace workbench {

class ModuleLoaderTest : public LoaderTest {
protected:
    bool failedBecauseOf(const std::string& words) {
        return modules().failureText().find(words) != std::string::npos;
    }
};

TEST_F(ModuleLoaderTest, ALoadedModuleHasRegisteredItsService) {
    EXPECT_TRUE(modules().loadModule(kModule));
    EXPECT_TRUE(modules().isLoaded(kModule));
    EXPECT_TRUE(vxrxServiceIsRegistered(kService));
    EXPECT_EQ(registry().findService(kService)->module(), libraries().find(kModule));
    EXPECT_EQ(modules().runningModule(), nullptr);
}

TEST_F(ModuleLoaderTest, LoadingTwiceLoadsOnce) {
    EXPECT_TRUE(modules().loadModule(kModule));
    EXPECT_TRUE(modules().loadModule(L"VXTP.QLX"));
    EXPECT_EQ(libraries().openCount(), 1U);
    EXPECT_TRUE(modules().unloadModule(kModule));
    EXPECT_EQ(libraries().find(kModule), nullptr);
}

TEST_F(ModuleLoaderTest, UnloadingTakesTheServiceBackAndClosesTheLibrary) {
    const int services = ServiceEntry::liveCount();
    modules().loadModule(kModule);
    EXPECT_TRUE(modules().unloadModule(kModule));
    EXPECT_FALSE(modules().isLoaded(kModule));
    EXPECT_FALSE(vxrxServiceIsRegistered(kService));
    EXPECT_EQ(ServiceEntry::liveCount(), services);
    EXPECT_EQ(libraries().openCount(), 0U);
    EXPECT_TRUE(libraries().stillMapped().empty());
    EXPECT_FALSE(modules().unloadModule(kModule));
    EXPECT_TRUE(failedBecauseOf("not loaded"));
}

TEST_F(ModuleLoaderTest, UnloadingAModuleThatSomebodyElseHoldsSaysThatItStays) {
    LibraryTable somebody{WORKBENCH_BIN_DIR, bench.faults()};
    modules().loadModule(kModule);
    somebody.load(kModule);
    EXPECT_FALSE(modules().unloadModule(kModule));
    EXPECT_TRUE(failedBecauseOf("stays in the process"));
    EXPECT_FALSE(modules().isLoaded(kModule));
}

TEST_F(ModuleLoaderTest, AModuleThatStaysLockedIsNotUnloaded) {
    faults().fail("VxRxDynamicLinker::unlockApplication");
    modules().loadModule(kModule);
    EXPECT_FALSE(modules().unloadModule(kModule));
    EXPECT_TRUE(modules().isLoaded(kModule));
    modules().unloadAll();
    EXPECT_FALSE(modules().isLoaded(kModule));
}

TEST_F(ModuleLoaderTest, AServiceThatAModuleLeavesBehindGoesWithIt) {
    modules().loadModule(kModule);
    faults().fail("VxRxDictionary::remove");
    modules().unloadModule(kModule);
    EXPECT_FALSE(vxrxServiceIsRegistered(kService));
}

TEST_F(ModuleLoaderTest, AMissingOrHiddenModuleIsNotLoaded) {
    EXPECT_FALSE(modules().loadModule(L"VxNothing.qlx"));
    EXPECT_TRUE(failedBecauseOf("VxNothing.qlx"));
    faults().hide("VxTp.qlx");
    EXPECT_FALSE(modules().loadModule(kModule));
    faults().unhide("VxTp.qlx");
    EXPECT_TRUE(modules().loadModule(kModule));
}

TEST_F(ModuleLoaderTest, WhatIsNoModuleIsClosedAgain) {
    EXPECT_FALSE(modules().loadModule(kResources));
    EXPECT_TRUE(failedBecauseOf("VxDashboardRes.dll: it has no vxrxGetApiVersion"));
    EXPECT_EQ(libraries().openCount(), 0U);
}

TEST_F(ModuleLoaderTest, ManyRoundsLeaveNothingBehind) {
    for (int round = 0; round < 100; ++round) {
        ASSERT_TRUE(modules().loadModule(kModule));
        ASSERT_TRUE(modules().unloadModule(kModule));
    }
    EXPECT_EQ(libraries().openCount(), 0U);
    EXPECT_TRUE(libraries().stillMapped().empty());
}

TEST_F(ModuleLoaderTest, InsideATurnTheLibraryIsClosedAtItsEnd) {
    modules().loadModule(kModule);
    {
        const Turn turn;
        EXPECT_TRUE(modules().unloadModule(kModule));
        EXPECT_FALSE(modules().isLoaded(kModule));
        EXPECT_FALSE(vxrxServiceIsRegistered(kService));
        EXPECT_EQ(libraries().openCount(), 1U);
    }
    EXPECT_EQ(libraries().openCount(), 0U);
}

TEST_F(ModuleLoaderTest, AModuleThatIsLoadedAgainInTheTurnOfItsUnloadingStays) {
    modules().loadModule(kModule);
    {
        const Turn turn;
        modules().unloadModule(kModule);
        EXPECT_TRUE(modules().loadModule(kModule));
    }
    EXPECT_TRUE(modules().isLoaded(kModule));
    EXPECT_TRUE(vxrxServiceIsRegistered(kService));
    EXPECT_EQ(libraries().openCount(), 1U);
}

}  // namespace workbench
