#include "module/manager.h"

#include "module/module.h"
#include "tests/module/manager_fixture.h"
#include "tests/palette/palette_fixture.h"
#include "workbench/editor/editor.h"
#include "workbench/profiles/profile_store.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/toolkit.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

// Showing

TEST_F(ManagerTest, FirstShowTellsTheListenersThreeTimesThatTheBarIsOn) {
    loadWithListener();
    show();
    EXPECT_EQ(m_listener.take(), (Heard{"on", "on", "willLoad", "loaded", "on"}));
    EXPECT_TRUE(isOnScreen());
}

TEST_F(ManagerTest, SecondShowTellsOnceAndBuildsNothing) {
    loadWithListener();
    show();
    m_listener.take();
    show();
    EXPECT_EQ(m_listener.take(), Heard{"on"});
}

TEST_F(ManagerTest, ShowAfterTheUsersCloseBringsTheBarBack) {
    loadWithListener();
    show();
    bench().toolkit().frame().close(*paletteSet());
    settle();
    EXPECT_FALSE(isOnScreen());
    m_listener.take();
    show();
    EXPECT_TRUE(isOnScreen());
    EXPECT_EQ(m_listener.take(), (Heard{"on", "on"}));
}

TEST_F(ManagerTest, UsersCloseReachesTheListeners) {
    loadWithListener();
    show();
    m_listener.take();
    bench().toolkit().frame().close(*paletteSet());
    settle();
    EXPECT_EQ(m_listener.take(), Heard{"off"});
}

TEST_F(ManagerTest, FrameIsAskedOnceToShowTheBarAndNeverWhileItIsOnScreen) {
    loadWithListener();
    takeJournal();
    show();
    EXPECT_EQ(takeBarCalls(), Lines{"CFrameWnd::ShowControlBar(object, 1, 0)"});
    show();
    EXPECT_EQ(takeBarCalls(), Lines{});
    bench().toolkit().frame().close(*paletteSet());
    show();
    EXPECT_EQ(takeBarCalls(), Lines{"CFrameWnd::ShowControlBar(object, 1, 0)"});
}

TEST_F(ManagerTest, ListenersHearOfTheBarWhenItIsThereOrGoneAlready) {
    loadWithListener();
    Lines states;
    m_listener.act = [this, &states](std::string_view event) {
        if (event == "on" || event == "off")
            states.push_back(std::string(event) + (isOnScreen() ? " and there" : " and gone"));
    };
    show();
    EXPECT_EQ(states, (Lines{"on and there", "on and there", "on and there"}));
    states.clear();
    set(L"CleanScreenState", 1);
    EXPECT_EQ(states, (Lines{"off and gone", "off and gone"}));
    states.clear();
    set(L"CleanScreenState", 0);
    EXPECT_EQ(states, (Lines{"on and there", "on and there"}));
    states.clear();
    EXPECT_EQ(notify(kDashboardUnload), 1);
    bench().toolkit().frame().close(*paletteSet());
    EXPECT_EQ(notify(kDashboardReload), 1);
    EXPECT_EQ(states, (Lines{"off and gone", "on and there", "on and there"}));
}

TEST_F(ManagerTest, PanelsAreMadeBetweenTheTwoNoticesOfTheirBuilding) {
    loadWithListener();
    Lines panels;
    m_listener.act = [this, &panels](std::string_view event) {
        if (event == "willLoad" || event == "loaded")
            panels.push_back(workbench::allPanels(bench().windows()).empty() ? "none" : "some");
    };
    show();
    EXPECT_EQ(panels, (Lines{"none", "some"}));
}

TEST_F(ManagerTest, PanelsCountAsLoadedFromTheNoticeOfItsEndToTheNoticeOfTheirEnd) {
    loadWithListener();
    // Only loaded panels let their controls be released, which is heard then.
    m_listener.act = [this](std::string_view event) {
        if (event.ends_with("oad") || event.ends_with("oaded"))
            exported<VxDaNotifyDashboardFn>("VxDaNotifyDashboard")(kDashboardReleaseControls);
    };
    show();
    EXPECT_EQ(m_listener.take(), (Heard{"on", "on", "willLoad", "loaded", "release", "on"}));
    EXPECT_EQ(notify(kDashboardUnload), 1);
    EXPECT_EQ(m_listener.take(), (Heard{"willUnload", "release", "unloaded"}));
}

TEST_F(ManagerTest, WithoutAFrameTheBarStaysHiddenAndNothingBreaks) {
    fail("vxedGetZorqFrame");
    loadWithListener();
    show();
    EXPECT_FALSE(isOnScreen());
}

// Profiles

TEST_F(ManagerTest, ProfileIsWrittenWhenItIsSavedButNotDuringTheQuit) {
    showDashboard();
    takeCalls();
    bench().editor().quitBegin();
    bench().profiles().save();
    std::vector<std::string> made = takeCalls();
    EXPECT_EQ(std::find(made.begin(), made.end(), "VxUt::AddChildNode"), made.end());
    bench().editor().quitAbort();
    bench().profiles().save();
    made = takeCalls();
    EXPECT_NE(std::find(made.begin(), made.end(), "VxUt::AddChildNode"), made.end());
}

TEST_F(ManagerTest, ListenerThatJoinsDuringACallIsToldFromTheNextOneOn) {
    loadWithListener();
    DashboardListener late;
    m_listener.act = [this, &late](std::string_view) { addListener(late); };
    show();
    EXPECT_EQ(m_listener.take(), (Heard{"on", "on", "willLoad", "loaded", "on"}));
    EXPECT_EQ(late.take(), (Heard{"on", "willLoad", "loaded", "on"}));
    m_listener.act = nullptr;
    unload();
}

TEST_F(ManagerTest, SwitchOfProfileLeavesThePanelsOnScreenAlone) {
    showDashboard();
    const auto before = panelsOnScreen();
    bench().profiles().switchTo("Other");
    settle();
    EXPECT_EQ(panelsOnScreen(), before);
}

// Listeners

TEST_F(ManagerTest, ListenerThatLeavesFromInsideACallEndsTheEventAsAnInvalidArgument) {
    env("ENABLEDASHBOARD", "1");
    ASSERT_TRUE(load());
    newDocument(L"A");
    DashboardListener leaving;
    addListener(leaving);
    addListener(m_listener);
    leaving.act = [this](std::string_view) { removeListener(m_listener); };
    show();
    EXPECT_EQ(takeTexts("box"), std::vector<std::string>{"An invalid argument was encountered."});
    leaving.act = nullptr;
    unload();
}

TEST_F(ManagerTest, ListenersAreCalledInTheOrderOfTheirRegistration) {
    loadWithListener();
    std::vector<int> order;
    const auto noteAs = [&order](int number) {
        return [&order, number](std::string_view event) {
            if (event == "loaded")
                order.push_back(number);
        };
    };
    DashboardListener first;
    first.act = noteAs(1);
    DashboardListener second;
    second.act = noteAs(2);
    addListener(first);
    addListener(second);
    show();
    EXPECT_EQ(order, (std::vector<int>{1, 2}));
    unload();
}

// The manager, linked into the test

class LinkedManagerTest : public PaletteTest {
protected:
    void TearDown() override {
        m_listener.act = nullptr;
        PaletteTest::TearDown();
    }
    VxDaManager& manager() { return *dashboardManager(); }
    /// The calls that add a reactor to the host or take one off, since the journal was forgotten.
    Lines takeReactorCalls() {
        return takeLines({"VxApProfileManager::addReactor", "VxEditor::addReactor",
                          "VxApDocManager::addReactor", "VxApProfileManager::removeReactor",
                          "VxEditor::removeReactor", "VxApDocManager::removeReactor"});
    }
    void loadWithListener() {
        load();
        manager().addOrRemoveReactor(&m_listener, true);
    }

    DashboardListener m_listener;
};

TEST_F(LinkedManagerTest, JoinsProfilesEditorAndDocumentsAndLeavesThemInTheSameOrder) {
    auto alone = std::make_unique<VxDaManager>();
    EXPECT_EQ(takeReactorCalls(), Lines{});
    EXPECT_EQ(alone->attach(), 1);
    EXPECT_EQ(takeReactorCalls(),
              (Lines{"VxApProfileManager::addReactor(object)", "VxEditor::addReactor(object)",
                     "VxApDocManager::addReactor(object)"}));
    alone.reset();
    EXPECT_EQ(takeReactorCalls(),
              (Lines{"VxApProfileManager::removeReactor(object)", "VxEditor::removeReactor(object)",
                     "VxApDocManager::removeReactor(object)"}));
}

TEST_F(LinkedManagerTest, ThatNeverJoinedLeavesNothing) {
    { const VxDaManager alone; }
    EXPECT_EQ(takeReactorCalls(), Lines{});
}

TEST_F(LinkedManagerTest, LeavesTheOthersWhenOneHostObjectIsMissing) {
    auto alone = std::make_unique<VxDaManager>();
    fail("vxProfileManagerPtr");
    EXPECT_EQ(alone->attach(), 1);
    EXPECT_EQ(takeReactorCalls(),
              (Lines{"VxEditor::addReactor(object)", "VxApDocManager::addReactor(object)"}));
    fail("vxProfileManagerPtr");
    alone.reset();
    EXPECT_EQ(takeReactorCalls(),
              (Lines{"VxEditor::removeReactor(object)", "VxApDocManager::removeReactor(object)"}));
}

TEST_F(LinkedManagerTest, ShowAnswersOne) {
    load();
    EXPECT_EQ(manager().dashboard(), nullptr);
    EXPECT_EQ(manager().panelSet(), nullptr);
    EXPECT_FALSE(manager().panelsLoaded());
    EXPECT_EQ(manager().showDashboard(), 1);
    EXPECT_NE(manager().dashboard(), nullptr);
    EXPECT_NE(manager().panelSet(), nullptr);
    EXPECT_TRUE(manager().panelsLoaded());
}

TEST_F(LinkedManagerTest, UnloadOfThePanelsAnswersZeroWithoutAPaletteSetAndOneWithIt) {
    loadWithListener();
    EXPECT_EQ(manager().unloadPanels(), 0);
    EXPECT_EQ(m_listener.take(), Heard{});
    showLoaded();
    m_listener.take();
    EXPECT_EQ(manager().unloadPanels(), 1);
    EXPECT_EQ(m_listener.take(), (Heard{"willUnload", "unloaded"}));
    EXPECT_FALSE(manager().panelsLoaded());
}

TEST_F(LinkedManagerTest, PaletteSetWithoutAWindowIsNotUnloadedAndTellsNobody) {
    loadWithListener();
    fail("CQrUiPaletteSet::OnCreate");
    showLoaded();
    ASSERT_EQ(dashboard().m_hWnd, nullptr);
    m_listener.take();
    EXPECT_EQ(manager().unloadPanels(), 0);
    EXPECT_EQ(manager().notify(kDashboardUnload), 1);
    EXPECT_EQ(m_listener.take(), Heard{});
    EXPECT_TRUE(manager().panelsLoaded());
}

TEST_F(LinkedManagerTest, UnloadOfABarWhoseWindowDiedLeavesTheSavedStateAlone) {
    loadWithListener();
    showLoaded();
    dashboard().DestroyWindow();
    m_listener.take();
    EXPECT_EQ(manager().notify(kDashboardUnload), 1);
    EXPECT_EQ(manager().notify(kDashboardReload), 1);
    EXPECT_EQ(m_listener.take(), Heard{"off"}) << "no unload saw a window, so none was on screen";
}

TEST_F(LinkedManagerTest, ReloadIntoAWindowThatDiedBuildsNothingAndIsToldTheSavedState) {
    loadWithListener();
    showLoaded();
    ASSERT_EQ(manager().notify(kDashboardUnload), 1);
    dashboard().DestroyWindow();
    m_listener.take();
    EXPECT_EQ(manager().notify(kDashboardReload), 1);
    EXPECT_EQ(m_listener.take(), Heard{"on"});
    EXPECT_FALSE(manager().panelsLoaded());
}

TEST_F(LinkedManagerTest, ReloadAsksTheFrameForWhatTheUnloadSawOnScreen) {
    show();
    const auto barCalls = [this] { return takeLines({"CFrameWnd::ShowControlBar"}); };
    ASSERT_EQ(manager().notify(kDashboardUnload), 1);
    ASSERT_EQ(manager().notify(kDashboardReload), 1);
    EXPECT_EQ(barCalls(), Lines{}) << "it is on screen still";
    ASSERT_EQ(manager().notify(kDashboardUnload), 1);
    dashboard().show(0);
    barCalls();
    ASSERT_EQ(manager().notify(kDashboardReload), 1);
    EXPECT_EQ(barCalls(), Lines{"CFrameWnd::ShowControlBar(object, 1, 0)"});
    dashboard().show(0);
    ASSERT_EQ(manager().notify(kDashboardUnload), 1);
    dashboard().show(1);
    barCalls();
    ASSERT_EQ(manager().notify(kDashboardReload), 1);
    EXPECT_EQ(barCalls(), Lines{"CFrameWnd::ShowControlBar(object, 0, 0)"});
}

}  // namespace
