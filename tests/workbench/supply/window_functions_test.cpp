#include "tests/workbench/windows/window_fixture.h"

namespace workbench {

namespace {

class WindowFunctionsTest : public WindowTest {};

}  // namespace

TEST_F(WindowFunctionsTest, OnlyAnOwnHandleIsAWindow) {
    TestWindow window;
    EXPECT_FALSE(IsWindow(nullptr));
    ASSERT_TRUE(make(window));
    EXPECT_TRUE(IsWindow(window.m_hWnd));
}

TEST_F(WindowFunctionsTest, AMessageIsSentByHandle) {
    TestWindow window;
    ASSERT_TRUE(make(window));
    window.answer = 12;
    EXPECT_EQ(SendMessage(window.m_hWnd, 2001, 3, 4), 12);
    EXPECT_EQ(window.got.back(), (Got{2001, 3, 4}));
    EXPECT_EQ(SendMessage(nullptr, 2001, 3, 4), 0);
}

TEST_F(WindowFunctionsTest, OnlyTheSizeFrameHasAMeasure) {
    EXPECT_GT(GetSystemMetrics(SM_CXSIZEFRAME), 0);
    EXPECT_EQ(GetSystemMetrics(SM_CXSIZEFRAME + 1), 0);
}

TEST_F(WindowFunctionsTest, AKeyIsDownWhileItIsHeld) {
    EXPECT_EQ(GetKeyState(VK_SHIFT), 0);
    windows().keys().hold(VK_SHIFT, true);
    EXPECT_LT(GetKeyState(VK_SHIFT), 0);
    EXPECT_EQ(GetKeyState(VK_RETURN), 0);
    Workbench::current().faults().fail("GetKeyState");
    EXPECT_EQ(GetKeyState(VK_SHIFT), 0);
}

TEST_F(WindowFunctionsTest, TheCursorIsNotedInTheJournal) {
    journal().take();
    SetArrowCursor();
    const std::vector<JournalRecord> calls = journal().take("call");
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls[0].field("name"), Value("SetArrowCursor"));
}

TEST_F(WindowFunctionsTest, TextsAreOrderedByTheUsersLanguage) {
    EXPECT_EQ(CollateNoCase(L"Layers", L"LAYERS"), 0);
    EXPECT_LT(CollateNoCase(L"apple", L"Banana"), 0);
}

TEST(WindowFunctionsLocaleTest, AnotherWorkbenchMayHaveAnotherLanguage) {
    const auto compare = [](const char* locale) {
        WorkbenchOptions options;
        options.locale = locale;
        const Workbench workbench(options);
        return CollateNoCase(L"\u00e4", L"z");
    };
    EXPECT_LT(compare("en_US"), 0);
    EXPECT_GT(compare("sv_SE"), 0);
}

TEST_F(WindowFunctionsTest, LeavingIsToldSoonWhereTheMouseIsNot) {
    TestWindow window;
    ASSERT_TRUE(make(window));
    TRACKMOUSEEVENT request{TME_LEAVE, window.m_hWnd};
    EXPECT_TRUE(TrackMouseEvent(&request));
    EXPECT_EQ(window.count(WM_MOUSELEAVE), 0);
    windows().queue().runPosted();
    windows().queue().runPosted();
    EXPECT_EQ(window.count(WM_MOUSELEAVE), 1);
    EXPECT_FALSE(TrackMouseEvent(nullptr));
    request.hwndTrack = nullptr;
    EXPECT_FALSE(TrackMouseEvent(&request));
}

TEST_F(WindowFunctionsTest, TheJournalTellsHowLongWorkWasUnderWay) {
    journal().take();
    {
        const CWaitCursor busy;
        GetSystemMetrics(0);
    }
    std::vector<std::string> calls;
    for (const JournalRecord& record : journal().take("call"))
        calls.push_back(record.field("name").asString());
    EXPECT_EQ(calls, (std::vector<std::string>{"CWaitCursor::CWaitCursor", "GetSystemMetrics",
                                               "CWaitCursor::~CWaitCursor"}));
}

TEST_F(WindowFunctionsTest, TheFontsObjectIsTheOneThatWasSet) {
    TestWindow window;
    ASSERT_TRUE(make(window));
    EXPECT_EQ(window.GetFont(), nullptr);
    CFont font;
    font.CreateFontIndirect({L"Sans"});
    window.SetFont(&font);
    EXPECT_EQ(window.GetFont(), &font);
    window.SetFont(nullptr);
    EXPECT_EQ(window.GetFont(), nullptr);
}

TEST_F(WindowFunctionsTest, TheActiveWindowIsTheTopWindowWithTheKeyboardOrTheMainWindow) {
    TestWindow top;
    TestWindow inner;
    ASSERT_TRUE(make(top) && make(inner, &top));
    EXPECT_EQ(CWnd::GetActiveWindow(), AfxGetMainWnd());
    inner.SetFocus();
    EXPECT_EQ(CWnd::GetActiveWindow(), &top);
}

}  // namespace workbench
