#include "tests/module/manager_fixture.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/gestures/slider_gestures.h"
#include "workbench/menu/menu_host.h"
#include "workbench/toolkit/toolkit.h"

#include <string>
#include <string_view>
#include <vector>

namespace {

class ExportsTest : public ManagerTest {
protected:
    VxDaPanelList visiblePanels(int expectedAnswer = 1) {
        VxDaPanelList panels;
        EXPECT_EQ(exported<VxDaGetVisiblePanelsFn>("VxDaGetVisiblePanels")(&panels),
                  expectedAnswer);
        return panels;
    }
    int setVisiblePanels(const VxDaPanelList& panels) {
        const int answer = exported<VxDaSetVisiblePanelsFn>("VxDaSetVisiblePanels")(&panels);
        settle();
        return answer;
    }
    const VxDaToolPanelItems* items(const wchar_t* id) {
        return exported<VxDaGetToolPanelItemsFn>("VxDaGetToolPanelItems")(id);
    }
    int addOrRemove(VxDaDashboardReactor* listener, int add) {
        return exported<VxDaAddOrRemoveReactorFn>("VxDaAddOrRemoveReactor")(listener, add);
    }
    HWND customControl(const wchar_t* name, HWND parent) {
        return exported<VxDaGetCustomControlFn>("VxDaGetCustomControl")(name, parent);
    }
    /// Types into the control's field and leaves the entry unfinished.
    void typeEntry(const std::wstring& text) {
        ASSERT_TRUE(
            workbench::gestures::focusField(bench().toolkit(), part(control(kControl), "edit")));
        workbench::gestures::replaceText(bench().toolkit(), text);
        settle();
    }
    void closeBar() {
        bench().toolkit().frame().close(*paletteSet());
        settle();
    }
};

// Before the first show

TEST_F(ExportsTest, VisiblePanelsBeforeTheFirstShowAreNone) {
    ASSERT_TRUE(load());
    VxDaPanelList panels{{L"left", L"over"}};
    EXPECT_EQ(exported<VxDaGetVisiblePanelsFn>("VxDaGetVisiblePanels")(&panels), 0);
    EXPECT_TRUE(panels.empty());
    EXPECT_EQ(setVisiblePanels({{L"Layers", L"ZORQ"}}), 0);
    EXPECT_EQ(items(L"ID_3DWalk"), nullptr);
    EXPECT_EQ(exported<VxDaInvalidateDashboardFn>("VxDaInvalidateDashboard")(), 0);
}

struct CodeCase {
    int code;
    int answer;
};
class CodeBeforeShowTest : public ExportsTest, public testing::WithParamInterface<CodeCase> {};

TEST_P(CodeBeforeShowTest, Answers) {
    ASSERT_TRUE(load());
    EXPECT_EQ(notify(GetParam().code), GetParam().answer);
}

INSTANTIATE_TEST_SUITE_P(Codes, CodeBeforeShowTest,
                         testing::Values(CodeCase{kDashboardReleaseControls, 1},
                                         CodeCase{kDashboardUnload, 1},
                                         CodeCase{kDashboardReload, 0}, CodeCase{3, 1},
                                         CodeCase{-1, 1}, CodeCase{99, 1}));

// Custom controls

TEST_F(ExportsTest, CustomControlIsMadeInTheParentThatIsNamed) {
    ASSERT_TRUE(load());
    newDocument(L"A");
    {
        CQrUiToolPanel parent;
        ASSERT_NE(parent.Create(WS_CHILD | WS_VISIBLE, {0, 0, 200, 100}, AfxGetMainWnd(), 1, 0), 0);
        const HWND made = customControl(L"LayerLockTransparencySliderControl", parent.m_hWnd);
        ASSERT_NE(made, nullptr);
        EXPECT_EQ(bench().windows().find(made)->parent, parent.m_hWnd);
        EXPECT_EQ(customControl(L"", parent.m_hWnd), nullptr);
        EXPECT_EQ(customControl(L"NoSuchControl", parent.m_hWnd), nullptr);
    }
    EXPECT_TRUE(unload());
}

TEST_F(ExportsTest, CustomControlOfNoNameOrInNoWindowIsNull) {
    ASSERT_TRUE(load());
    EXPECT_EQ(customControl(nullptr, AfxGetMainWnd()->m_hWnd), nullptr);
    EXPECT_EQ(customControl(nullptr, nullptr), nullptr);
    EXPECT_EQ(customControl(L"LayerLockTransparencySliderControl", nullptr), nullptr);
}

// Codes

TEST_F(ExportsTest, ReleaseEndsTheControlsAndKeepsThePanels) {
    showWithListener();
    EXPECT_EQ(notify(kDashboardReleaseControls), 1);
    EXPECT_EQ(control(kControl), nullptr);
    EXPECT_EQ(m_listener.take(), Heard{"release"});
    EXPECT_FALSE(panelsOnScreen().empty());
}

TEST_F(ExportsTest, ReleaseIsToldWhileTheControlsStillLive) {
    showWithListener();
    bool lives = false;
    m_listener.act = [this, &lives](std::string_view) { lives = control(kControl) != nullptr; };
    EXPECT_EQ(notify(kDashboardReleaseControls), 1);
    EXPECT_EQ(m_listener.take(), Heard{"release"});
    EXPECT_TRUE(lives);
    EXPECT_EQ(control(kControl), nullptr);
}

TEST_F(ExportsTest, ReleaseTakesAnEntryOverThatTheUserHadNotFinished) {
    showWithListener();
    typeEntry(L"70");
    ASSERT_EQ(var(L"LAYLOCKFADECTL"), workbench::Value(50));
    EXPECT_EQ(notify(kDashboardReleaseControls), 1);
    EXPECT_EQ(var(L"LAYLOCKFADECTL"), workbench::Value(70));
}

TEST_F(ExportsTest, ReleaseTwiceIsHarmlessAndIsToldTwice) {
    showWithListener();
    EXPECT_EQ(notify(kDashboardReleaseControls), 1);
    EXPECT_EQ(notify(kDashboardReleaseControls), 1);
    EXPECT_EQ(m_listener.take(), (Heard{"release", "release"}));
    EXPECT_EQ(notify(kDashboardUnload), 1);
    EXPECT_EQ(notify(kDashboardReload), 1);
    EXPECT_NE(control(kControl), nullptr);
}

TEST_F(ExportsTest, ReleaseWithoutPanelsTellsNobody) {
    showWithListener();
    EXPECT_EQ(notify(kDashboardUnload), 1);
    m_listener.take();
    EXPECT_EQ(notify(kDashboardReleaseControls), 1);
    EXPECT_TRUE(m_listener.take().empty());
}

TEST_F(ExportsTest, UnloadTwiceAnswersOneAndLeavesTheSavedStateAlone) {
    showDashboard();
    EXPECT_EQ(notify(kDashboardUnload), 1);
    closeBar();
    EXPECT_EQ(notify(kDashboardUnload), 1);
    EXPECT_EQ(notify(kDashboardReload), 1);
    EXPECT_TRUE(isOnScreen()) << "the first unload saw the bar on screen";
}

TEST_F(ExportsTest, ReloadTellsOfThePanelsAndThenThatTheBarIsOn) {
    showWithListener();
    EXPECT_EQ(notify(kDashboardUnload), 1);
    m_listener.take();
    EXPECT_EQ(notify(kDashboardReload), 1);
    EXPECT_EQ(m_listener.take(), (Heard{"willLoad", "loaded", "on"}));
    EXPECT_TRUE(isOnScreen());
}

TEST_F(ExportsTest, ReloadRestoresAHiddenBarAsHidden) {
    showWithListener();
    closeBar();
    EXPECT_EQ(notify(kDashboardUnload), 1);
    m_listener.take();
    EXPECT_EQ(notify(kDashboardReload), 1);
    EXPECT_FALSE(isOnScreen());
    EXPECT_EQ(m_listener.take(), (Heard{"willLoad", "loaded", "off"}));
    EXPECT_NE(control(kControl), nullptr);
}

TEST_F(ExportsTest, ReloadWithNoUnloadEverHidesTheBarBecauseNoneSawItOnScreen) {
    showWithListener();
    EXPECT_EQ(notify(kDashboardReload), 1);
    EXPECT_FALSE(isOnScreen());
    EXPECT_EQ(m_listener.take(), (Heard{"off", "off"})) << "the toolkit tells, then the reload";
}

TEST_F(ExportsTest, ReloadWithoutAnUnloadBuildsNothing) {
    showDashboard();
    const HWND before = control(kControl);
    closeBar();
    EXPECT_EQ(notify(kDashboardReload), 1);
    EXPECT_EQ(control(kControl), before);
}

TEST_F(ExportsTest, SwitchOfWorkspaceShowsItsPanelsAfterUnloadAndReload) {
    showDashboard();
    ASSERT_TRUE(bench().menu().switchWorkspace("Drafting"));
    EXPECT_EQ(notify(kDashboardUnload), 1);
    EXPECT_EQ(notify(kDashboardReload), 1);
    EXPECT_EQ(visiblePanels(), (VxDaPanelList{{L"Draw", L"ZORQ"},
                                              {L"Layers", L"ZORQ"},
                                              {L"Text", L"ZORQ"},
                                              {L"HouseTools", L"HOUSETOOLS"}}));
    EXPECT_FALSE(bench().menu().workspaces().panelRefreshFromWorkspace());
}

// Panels and items

TEST_F(ExportsTest, VisiblePanelsAreListedInTheOrderOfTheRecords) {
    showDashboard();
    const VxDaPanelList panels = visiblePanels();
    ASSERT_EQ(panels.size(), 11U);
    EXPECT_EQ(panels.front(), (std::pair<VxString, VxString>{L"Layers", L"ZORQ"}));
    EXPECT_EQ(panels.back(), (std::pair<VxString, VxString>{L"HouseTools", L"HOUSETOOLS"}));
}

TEST_F(ExportsTest, ListOfPanelsThatIsNoneAnswersZeroAndChangesNothing) {
    showDashboard();
    const VxDaPanelList before = visiblePanels();
    takeJournal();
    EXPECT_EQ(exported<VxDaGetVisiblePanelsFn>("VxDaGetVisiblePanels")(nullptr), 0);
    EXPECT_EQ(exported<VxDaSetVisiblePanelsFn>("VxDaSetVisiblePanels")(nullptr), 0);
    EXPECT_TRUE(takeCalls().empty());
    EXPECT_EQ(visiblePanels(), before);
}

TEST_F(ExportsTest, SetVisiblePanelsWithoutTheRefreshFlagOnlyHides) {
    showDashboard();
    EXPECT_EQ(setVisiblePanels({{L"Layers", L"ZORQ"}}), 1);
    EXPECT_TRUE(visiblePanels().empty());
}

TEST_F(ExportsTest, SetVisiblePanelsWithTheFlagRaisedShowsTheListInItsOrder) {
    showDashboard();
    bench().menu().workspaces().setPanelRefreshFromWorkspace(true);
    EXPECT_EQ(setVisiblePanels({{L"Text", L"ZORQ"}, {L"Nowhere", L"ZORQ"}, {L"Layers", L"ZORQ"}}),
              1);
    EXPECT_EQ(visiblePanels(), (VxDaPanelList{{L"Text", L"ZORQ"}, {L"Layers", L"ZORQ"}}));
}

TEST_F(ExportsTest, ItemsOfAnIdAreHandedOut) {
    showDashboard();
    const VxDaToolPanelItems* walls = items(L"HT_WALL");
    ASSERT_NE(walls, nullptr);
    EXPECT_EQ(walls->size(), 2U) << "a button and a tool in a flyout";
    EXPECT_EQ(items(L"ht_wall"), nullptr) << "IDs are exact";
    EXPECT_EQ(items(nullptr), nullptr);
}

TEST_F(ExportsTest, InvalidateAsksForARepaintOfTheBarAlone) {
    showDashboard();
    std::vector<HWND> repainted;
    bench().windows().changes().setObserver(
        [&repainted](HWND window) { repainted.push_back(window); });
    EXPECT_EQ(exported<VxDaInvalidateDashboardFn>("VxDaInvalidateDashboard")(), 1);
    bench().windows().changes().setObserver(nullptr);
    EXPECT_EQ(repainted, std::vector<HWND>{paletteSet()->m_hWnd});
}

TEST_F(ExportsTest, InvalidateWorksWithoutPanels) {
    showDashboard();
    EXPECT_EQ(notify(kDashboardUnload), 1);
    EXPECT_EQ(exported<VxDaInvalidateDashboardFn>("VxDaInvalidateDashboard")(), 1);
}

// Listeners

TEST_F(ExportsTest, ListenerEntersOnce) {
    showDashboard();
    EXPECT_EQ(addOrRemove(&m_listener, 1), 1);
    EXPECT_EQ(addOrRemove(&m_listener, 1), 1);
    EXPECT_EQ(addOrRemove(&m_listener, 0), 1);
    EXPECT_EQ(notify(kDashboardUnload), 1);
    EXPECT_TRUE(m_listener.take().empty()) << "one removal takes it off altogether";
}

TEST_F(ExportsTest, RemovalKeepsTheOrderOfTheOthers) {
    showDashboard();
    std::vector<int> order;
    std::vector<DashboardListener> listeners(3);
    for (int number = 1; DashboardListener & listener : listeners) {
        listener.act = [&order, number](std::string_view) { order.push_back(number); };
        addOrRemove(&listener, 1);
        ++number;
    }
    EXPECT_EQ(addOrRemove(&listeners[1], 0), 1);
    EXPECT_EQ(notify(kDashboardReleaseControls), 1);
    EXPECT_EQ(order, (std::vector<int>{1, 3}));
    unload();
}

TEST_F(ExportsTest, UnknownListenerIsRemovedWithOneAndNullAnswersZero) {
    ASSERT_TRUE(load());
    EXPECT_EQ(addOrRemove(&m_listener, 0), 1);
    EXPECT_EQ(addOrRemove(nullptr, 1), 0);
    EXPECT_EQ(addOrRemove(nullptr, 0), 0);
}

}  // namespace
