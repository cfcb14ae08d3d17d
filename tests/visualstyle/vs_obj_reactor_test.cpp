#include "visualstyle/vs_obj_reactor.h"

#include "tests/palette/palette_fixture.h"
#include "tests/support/bench.h"
#include "workbench/editor/editor.h"
#include "workbench/toolkit/lookup.h"

#include <hostapi/qrui18/tool_panel_item.h>

namespace {

class StyleLockTest : public support::Bench {
protected:
    bool isDisabled(const wchar_t* id) {
        return workbench::viewOf(bench().toolkit(), *item(id)).disabled;
    }
    void rebuild() {
        ASSERT_EQ(notify(kDashboardUnload), 1);
        ASSERT_EQ(notify(kDashboardReload), 1);
    }
};

TEST_F(StyleLockTest, ToolsAreGreyedWhilePaperSpaceIsActiveWhenThePanelsComeUp) {
    showDashboard();
    EXPECT_FALSE(isDisabled(L"ID_VSFACEOPACITY"));
    set(L"TILEMODE", 0);
    rebuild();
    for (const wchar_t* id : {L"ID_VSSHADOWS_OFF", L"ID_VSFACEOPACITY", L"ID_VSOBSCUREDEDGES"}) {
        EXPECT_TRUE(isDisabled(id));
    }
    set(L"TILEMODE", 1);
    rebuild();
    EXPECT_FALSE(isDisabled(L"ID_VSFACEOPACITY"));
}

class LockedToolTest : public StyleLockTest, public testing::WithParamInterface<const wchar_t*> {};

TEST_P(LockedToolTest, IsGreyInPaperSpaceAndFreeAfterwards) {
    showDashboard();
    ASSERT_NE(item(GetParam()), nullptr);
    set(L"TILEMODE", 0);
    rebuild();
    EXPECT_TRUE(isDisabled(GetParam()));
    set(L"TILEMODE", 1);
    rebuild();
    EXPECT_FALSE(isDisabled(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(
    Tools, LockedToolTest,
    testing::Values(L"ID_VSSHADOWS_OFF", L"ID_VSSHADOWS_GROUND", L"ID_VSSHADOWS_FULL",
                    L"ID_VSFACECOLORMODE_REGU", L"ID_VSFACECOLORMODE_MONO",
                    L"ID_VSFACECOLORMODE_TINT", L"ID_VSFACECOLORMODE_DESA", L"ID_VSFACESTYLE_NONE",
                    L"ID_VSFACESTYLE_REAL", L"ID_VSFACESTYLE_WARMCOOL", L"ID_VSEDGES_NONE",
                    L"ID_VSEDGES_ISOLINES", L"ID_VSEDGES_FACET", L"ID_VSFACEOPACITY",
                    L"ID_VSLIGHTINGQUALITY_FACET", L"ID_VSLIGHTINGQUALITY_SMOOTH",
                    L"ID_VSLIGHTINGQUALITY_SMOOTHEST", L"ID_VSSILHEDGES", L"ID_VSINTERSECTIONEDGES",
                    L"ID_VSOBSCUREDEDGES"));

TEST_F(StyleLockTest, ViewportOnTheSheetLeavesTheToolsLive) {
    env("ENABLEDASHBOARD", "1");
    ASSERT_TRUE(load());
    openDrawing("examples/house.json");
    set(L"TILEMODE", 0);
    set(L"CVPORT", 2);
    type(L"DASHBOARDOLD\n");
    EXPECT_FALSE(isDisabled(L"ID_VSFACEOPACITY"));
    set(L"CVPORT", 1);
    rebuild();
    EXPECT_TRUE(isDisabled(L"ID_VSFACEOPACITY"));
}

TEST_F(StyleLockTest, WatchersOutliveAReleaseThatDoesNotMatchTheirCount) {
    showDashboard();
    rebuild();
    ASSERT_EQ(notify(kDashboardReleaseControls), 1);
    set(L"TILEMODE", 0);
    rebuild();
    EXPECT_TRUE(isDisabled(L"ID_VSFACEOPACITY"));
}

TEST_F(StyleLockTest, WatchersThatWereReleasedOftenerThanCountedStayAway) {
    showDashboard();
    ASSERT_EQ(notify(kDashboardReleaseControls), 1);
    ASSERT_EQ(notify(kDashboardReleaseControls), 1);
    set(L"TILEMODE", 0);
    rebuild();
    EXPECT_FALSE(isDisabled(L"ID_VSFACEOPACITY")) << "the count came back to zero only";
}

TEST_F(StyleLockTest, RebuildCountsTheWatchersUpOnceMoreSoThatTwoReleasesOnlyEndThem) {
    showDashboard();
    rebuild();
    ASSERT_EQ(notify(kDashboardReleaseControls), 1);
    ASSERT_EQ(notify(kDashboardReleaseControls), 1);
    set(L"TILEMODE", 0);
    rebuild();
    EXPECT_TRUE(isDisabled(L"ID_VSFACEOPACITY")) << "a count of zero lets them be made anew";
}

TEST_F(StyleLockTest, ReleasesWithoutPanelsDoNotCount) {
    showDashboard();
    set(L"TILEMODE", 0);
    ASSERT_EQ(notify(kDashboardUnload), 1);
    ASSERT_EQ(notify(kDashboardReleaseControls), 1);
    ASSERT_EQ(notify(kDashboardReleaseControls), 1);
    ASSERT_EQ(notify(kDashboardReload), 1);
    EXPECT_TRUE(isDisabled(L"ID_VSFACEOPACITY")) << "a count below zero would make no watcher";
}

// A panel author's own settings

constexpr const char* kMenu = R"({
  "menuGroups": [{"name": "MAIN"}],
  "panels": [{"menuGroup": "MAIN", "id": "Styles", "title": "Styles", "toolPanels": ["Tools"]}],
  "workspaces": [{"name": "Work", "panels": [{"panel": "Styles", "menuGroup": "MAIN"}]}],
  "currentWorkspace": "Work",
  "toolPanels": [{"menuGroup": "MAIN", "id": "Tools", "items": [
    {"type": "button", "id": "ID_VSFACEOPACITY"}, {"type": "button", "id": "ID_VSFACEOPACITY"}]}]
})";

class OwnSettingTest : public PaletteTest {
protected:
    OwnSettingTest() : PaletteTest(kMenu) {}
    void SetUp() override { show(); }
    void setTileMode(int value) { ASSERT_TRUE(bench().editor().set(L"TILEMODE", value)); }
    bool isDisabled(std::size_t n) {
        return (item(L"ID_VSFACEOPACITY", n)->GetState() & kItemDisabled) != 0;
    }
    void disable() { item(L"ID_VSFACEOPACITY")->SetState(kItemDisabled); }

    CVxDaVSObjReactor m_reactor;
};

TEST_F(OwnSettingTest, SurvivesUpdatesBeforeTheFirstLock) {
    disable();
    m_reactor.update();
    EXPECT_TRUE(isDisabled(0));
    EXPECT_FALSE(isDisabled(1));
}

TEST_F(OwnSettingTest, IsLostForGoodWithTheFirstLock) {
    setTileMode(0);
    m_reactor.update();
    EXPECT_TRUE(isDisabled(0));
    EXPECT_TRUE(isDisabled(1)) << "all items of the ID are greyed";
    setTileMode(1);
    m_reactor.update();
    EXPECT_FALSE(isDisabled(0));
    disable();
    m_reactor.update();
    EXPECT_FALSE(isDisabled(0)) << "every later update frees the tools again";
}

}  // namespace
