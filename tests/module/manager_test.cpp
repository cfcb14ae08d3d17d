#include "tests/module/manager_fixture.h"
#include "workbench/editor/editor.h"
#include "workbench/profiles/profile_store.h"
#include "workbench/toolkit/toolkit.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace {

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

}  // namespace
