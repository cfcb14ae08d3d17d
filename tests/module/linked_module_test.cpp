#include "module/manager.h"
#include "module/module.h"
#include "tests/palette/palette_fixture.h"
#include "visualstyle/style_reactors.h"
#include "workbench/loader/service_entry.h"

namespace {

/// The module, linked into the test.
class LinkedModuleTest : public PaletteTest {
protected:
    bool isServiceThere() { return vxrxServiceIsRegistered(L"ZorqVxDashboard"); }
    /// Whether the watcher of visual styles is there: it looks at the space when asked to update.
    bool areStylesWatched() {
        forget();
        updateVisualStyleState();
        return callCount("vxedGetVar") > 0;
    }
};

TEST_F(LinkedModuleTest, UnloadTakesTheServiceOutItselfAndDeletesIt) {
    const int before = workbench::ServiceEntry::liveCount();
    load();
    ASSERT_TRUE(isServiceThere());
    EXPECT_EQ(workbench::ServiceEntry::liveCount(), before + 1);
    unloadModule();
    EXPECT_FALSE(isServiceThere());
    EXPECT_EQ(workbench::ServiceEntry::liveCount(), before);
}

TEST_F(LinkedModuleTest, UnloadWithoutTheDictionaryOfServicesLeavesTheService) {
    load();
    fail("VxRxDictionary::at", 100);
    unloadModule();
    EXPECT_TRUE(isServiceThere());
    EXPECT_EQ(callCount("VxRxDictionary::remove"), 0);
    bench().faults().unfail("VxRxDictionary::at");
}

TEST_F(LinkedModuleTest, ManagersAndThemeLiveFromTheLoadToTheUnload) {
    EXPECT_EQ(dashboardManager(), nullptr);
    EXPECT_EQ(controlManager(), nullptr);
    load();
    EXPECT_NE(dashboardManager(), nullptr);
    EXPECT_NE(controlManager(), nullptr);
    unloadModule();
    EXPECT_EQ(dashboardManager(), nullptr);
    EXPECT_EQ(controlManager(), nullptr);
}

TEST_F(LinkedModuleTest, DashboardCountsAsVisibleOnlyWhileTheBarIsOnScreen) {
    EXPECT_FALSE(isDashboardVisible());
    load();
    EXPECT_FALSE(isDashboardVisible());
    showLoaded();
    EXPECT_TRUE(isDashboardVisible());
    dashboard().show(0);
    EXPECT_FALSE(isDashboardVisible());
}

TEST_F(LinkedModuleTest, UnloadEndsTheWatchersOfVisualStylesHoweverOftenTheyWereCounted) {
    show();
    dashboardManager()->notify(kDashboardUnload);
    dashboardManager()->notify(kDashboardReload);
    ASSERT_TRUE(areStylesWatched());
    unloadModule();
    EXPECT_FALSE(areStylesWatched());
}

}  // namespace
