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

}  // namespace workbench
