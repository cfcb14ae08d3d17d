#include "tests/module/manager_fixture.h"
#include "workbench/editor/editor.h"
#include "workbench/toolkit/toolkit.h"

#include <string>
#include <string_view>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

/// The bar leaves the screen by itself, and comes back.
class BarReturnTest : public ManagerTest {};

// Clean screen

TEST_F(BarReturnTest, CleanScreenHidesTheBarAndBringsItBack) {
    loadWithListener();
    show();
    m_listener.take();
    set(L"CleanScreenState", 1);
    EXPECT_FALSE(isOnScreen());
    EXPECT_EQ(m_listener.take(), (Heard{"off", "off"}));
    set(L"CleanScreenState", 0);
    EXPECT_TRUE(isOnScreen());
    EXPECT_EQ(m_listener.take(), (Heard{"on", "on"}));
}

TEST_F(BarReturnTest, CleanScreenNameIsTakenWithoutRegardToCase) {
    showDashboard();
    set(L"CleanScreenState", 1);
    set(L"CleanScreenState", 0);
    EXPECT_TRUE(isOnScreen());
    bench().toolkit().frame().close(*paletteSet());
    settle();
    EXPECT_FALSE(isOnScreen());
    bench().editor().reactors().sysVarChanged(L"CLEANSCREENSTATE", true);
    EXPECT_TRUE(isOnScreen());
}

TEST_F(BarReturnTest, CleanScreenEnteredWithTheBarHiddenDoesNotBringItUpLater) {
    showDashboard();
    set(L"CleanScreenState", 1);
    set(L"CleanScreenState", 0);
    bench().toolkit().frame().close(*paletteSet());
    settle();
    set(L"CleanScreenState", 1);
    set(L"CleanScreenState", 0);
    EXPECT_FALSE(isOnScreen());
}

TEST_F(BarReturnTest, FloatingBarIsHiddenByCleanScreenAndBroughtBackToo) {
    showWithListener();
    bench().toolkit().frame().floatAt(*paletteSet(), {100, 100, 340, 500});
    takeJournal();
    set(L"CleanScreenState", 1);
    EXPECT_FALSE(isOnScreen());
    EXPECT_EQ(takeBarCalls(), Lines{"CFrameWnd::ShowControlBar(object, 0, 0)"});
    set(L"CleanScreenState", 0);
    EXPECT_TRUE(isOnScreen());
    EXPECT_EQ(takeBarCalls(), Lines{"CFrameWnd::ShowControlBar(object, 1, 0)"});
}

TEST_F(BarReturnTest, CleanScreenStateIsNotEvenReadBeforeTheFirstShow) {
    loadWithListener();
    set(L"LTSCALE", 2.0);
    takeJournal();
    set(L"CleanScreenState", 1);
    set(L"CleanScreenState", 0);
    EXPECT_EQ(support::callLines(takeJournal()), Lines{});
    EXPECT_TRUE(m_listener.take().empty());
}

TEST_F(BarReturnTest, EndOfACleanScreenThatHidNothingTellsNobody) {
    showWithListener();
    bench().toolkit().frame().close(*paletteSet());
    settle();
    m_listener.take();
    takeJournal();
    set(L"CleanScreenState", 1);
    set(L"CleanScreenState", 0);
    EXPECT_TRUE(m_listener.take().empty());
    EXPECT_EQ(takeBarCalls(), Lines{});
}

TEST_F(BarReturnTest, CleanScreenWithoutAFrameLeavesTheBarAndIsStillTold) {
    showWithListener();
    fail("vxedGetZorqFrame");
    set(L"CleanScreenState", 1);
    EXPECT_TRUE(isOnScreen());
    EXPECT_EQ(m_listener.take(), Heard{"off"});
}

TEST_F(BarReturnTest, CleanScreenLeavesABarWithoutPanelsOnScreenAndTellsNobody) {
    showWithListener();
    ASSERT_EQ(notify(kDashboardUnload), 1);
    m_listener.take();
    set(L"CleanScreenState", 1);
    EXPECT_TRUE(isOnScreen());
    EXPECT_TRUE(m_listener.take().empty());
    set(L"CleanScreenState", 0);
    EXPECT_FALSE(panelsOnScreen().empty()) << "that the bar was on screen is remembered";
}

TEST_F(BarReturnTest, PanelsThatWentInCleanScreenAreBuiltAgainAtItsEnd) {
    showWithListener();
    const std::vector<std::wstring> before = panelsOnScreen();
    set(L"CleanScreenState", 1);
    ASSERT_EQ(notify(kDashboardUnload), 1);
    m_listener.take();
    set(L"CleanScreenState", 0);
    EXPECT_TRUE(isOnScreen());
    EXPECT_EQ(panelsOnScreen(), before);
    EXPECT_EQ(m_listener.take(), (Heard{"on", "on", "willLoad", "loaded", "on"}));
}

// Documents

TEST_F(BarReturnTest, LastDocumentTakesTheBarAlongAndTheNextBringsItBack) {
    loadWithListener();
    show();
    closeDocument(L"A");
    EXPECT_FALSE(isOnScreen());
    newDocument(L"B");
    EXPECT_TRUE(isOnScreen());
}

TEST_F(BarReturnTest, LastDocumentHidesTheBarThenTellsTheListenersThenTheControls) {
    showWithListener();
    m_listener.act = [this](std::string_view event) {
        bench().journal().add("heard", {{"event", std::string(event)}});
    };
    closeDocument(L"A");
    Lines road;
    for (const workbench::JournalRecord& record : takeJournal()) {
        if (record.field("name") == workbench::Value("CFrameWnd::ShowControlBar"))
            road.push_back(support::callLine(record));
        if (record.kind == "heard")
            road.push_back(record.field("event").asString());
        if (record.field("number") == workbench::Value(1725) &&
            record.field("control") == workbench::Value(kControl))
            road.push_back("1725 " + record.field("lparam").asString());
    }
    EXPECT_EQ(road, (Lines{"CFrameWnd::ShowControlBar(object, 0, 0)", "off", "off", "1725 A"}));
}

TEST_F(BarReturnTest, LastDocumentWithTheBarHiddenByTheUserTellsTheControlsAloneAndNoneComesBack) {
    showWithListener();
    closeDocument(L"A");
    newDocument(L"B");
    ASSERT_TRUE(isOnScreen());
    bench().toolkit().frame().close(*paletteSet());
    settle();
    m_listener.take();
    takeJournal();
    closeDocument(L"B");
    EXPECT_TRUE(got(1725));
    newDocument(L"C");
    EXPECT_FALSE(isOnScreen());
    EXPECT_TRUE(m_listener.take().empty());
}

TEST_F(BarReturnTest, LastDocumentBeforeTheFirstShowIsNoMatter) {
    loadWithListener();
    closeDocument(L"A");
    newDocument(L"B");
    EXPECT_EQ(paletteSet(), nullptr);
    EXPECT_TRUE(m_listener.take().empty());
}

TEST_F(BarReturnTest, SecondDocumentBringsNothingBackThatTheUserClosed) {
    showWithListener();
    closeDocument(L"A");
    newDocument(L"B");
    ASSERT_TRUE(isOnScreen());
    bench().toolkit().frame().close(*paletteSet());
    settle();
    m_listener.take();
    newDocument(L"C");
    EXPECT_FALSE(isOnScreen());
    EXPECT_TRUE(m_listener.take().empty());
}

TEST_F(BarReturnTest, BarStaysHiddenForTheNextDocumentInCleanScreen) {
    showDashboard();
    closeDocument(L"A");
    set(L"CleanScreenState", 1);
    newDocument(L"B");
    EXPECT_FALSE(isOnScreen());
}

TEST_F(BarReturnTest, ClosingOneOfTwoDocumentsChangesNothing) {
    showDashboard();
    newDocument(L"B");
    takeJournal();
    closeDocument(L"A");
    EXPECT_TRUE(isOnScreen());
    EXPECT_FALSE(got(1725));
}

TEST_F(BarReturnTest, LastDocumentDuringTheQuitLeavesTheBar) {
    showDashboard();
    bench().editor().quitBegin();
    takeJournal();
    closeDocument(L"A");
    EXPECT_TRUE(isOnScreen());
    EXPECT_FALSE(got(1725));
}

TEST_F(BarReturnTest, AbortedQuitIsForgotten) {
    showDashboard();
    bench().editor().quitBegin();
    bench().editor().quitAbort();
    closeDocument(L"A");
    EXPECT_FALSE(isOnScreen());
}

TEST_F(BarReturnTest, BarWithoutPanelsStaysAtTheLastDocumentAndTheNextBuildsThem) {
    showWithListener();
    const std::vector<std::wstring> before = panelsOnScreen();
    ASSERT_EQ(notify(kDashboardUnload), 1);
    m_listener.take();
    closeDocument(L"A");
    EXPECT_TRUE(isOnScreen());
    EXPECT_TRUE(m_listener.take().empty());
    newDocument(L"B");
    EXPECT_TRUE(isOnScreen());
    EXPECT_EQ(panelsOnScreen(), before);
    EXPECT_EQ(m_listener.take(), (Heard{"on", "willLoad", "loaded", "on"}));
}

TEST_F(BarReturnTest, ReturnWithADocumentIsRememberedPastTheUsersClose) {
    showWithListener();
    closeDocument(L"A");
    newDocument(L"B");
    ASSERT_TRUE(isOnScreen());
    bench().toolkit().frame().close(*paletteSet());
    settle();
    ASSERT_FALSE(isOnScreen());
    bench().editor().reactors().sysVarChanged(L"CleanScreenState", true);
    EXPECT_TRUE(isOnScreen());
}

}  // namespace
