#include "layer/layer_regeneration.h"

#include "tests/layer/filter_combo_fixture.h"

#include <hostapi/window/frame.h>
#include <hostapi/zorq/frame_windows.h>

namespace {

TEST_F(FilterComboTest, RegenerationHasTheKeyboardInTheMainWindowAndGivesItBack) {
    CWnd& list = *CWnd::FromHandle(window());
    takeJournal();
    regenerateLayers({{1}, {2}}, list);
    EXPECT_TRUE(hasFocus(window()));
    const Calls made = takeCallLines({"CWaitCursor::CWaitCursor", "CWaitCursor::~CWaitCursor",
                                      "CWnd::EnableWindow", "CWnd::SetFocus", "vxedRegenPending",
                                      "vxedRegenLayers"});
    ASSERT_EQ(made.size(), 7U);
    EXPECT_EQ(made[0], "CWaitCursor::CWaitCursor()");
    EXPECT_EQ(made[1], "CWnd::EnableWindow(\"CFrameWnd\", 1)");
    EXPECT_EQ(made[2], "CWnd::SetFocus(\"CFrameWnd\")");
    EXPECT_EQ(made[3], "vxedRegenPending()");
    EXPECT_EQ(made[4].substr(0, 15), "vxedRegenLayers");
    EXPECT_EQ(made[5], "CWaitCursor::~CWaitCursor()");
    EXPECT_EQ(made[6], "CWnd::SetFocus(\"LayerFilterComboControl\")");
}

TEST_F(FilterComboTest, MainWindowIsEnabledAndGetsTheKeyboard) {
    CFrameWnd* frame = vxedGetZorqFrame();
    frame->EnableWindow(0);
    enterMainWindow();
    EXPECT_TRUE(frame->IsWindowEnabled());
    EXPECT_TRUE(hasFocus(frame->m_hWnd));
}

TEST_F(FilterComboTest, WithoutAMainWindowNothingIsEntered) {
    fail("vxedGetZorqFrame", {}, 1);
    takeJournal();
    enterMainWindow();
    EXPECT_EQ(takeCallLines({"CWnd::EnableWindow", "CWnd::SetFocus"}), Calls{});
}

}  // namespace
