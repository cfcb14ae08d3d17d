#include "workbench/gestures/key_gestures.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/gesture_error.h"
#include "workbench/toolkit/input_messages.h"

namespace workbench::gestures {
namespace {

using testing::ElementsAre;

/// A control that keeps what passes by on its way to its parts.
class Watching final : public CQrUiToolPanel {
public:
    BOOL PreTranslateMessage(MSG* message) override {
        seen.emplace_back(message->message, message->wParam);
        return consumes ? 1 : 0;
    }
    std::vector<std::pair<UINT, WPARAM>> seen;
    bool consumes = false;
};

class KeyGesturesTest : public ToolkitTest {
protected:
    KeyGesturesTest() {
        m_control.Create(WS_CHILD | WS_VISIBLE, {0, 0, 100, 22}, m_toolPanel, 1, 0);
        m_edit.Create(WS_CHILD | WS_VISIBLE, {0, 0, 60, 20}, &m_control, 10001, 0);
        focusField(toolkit(), m_edit.m_hWnd);
        m_control.seen.clear();
    }
    Watching m_control;
    CQrUiInputEditCtrl m_edit;
};

TEST_F(KeyGesturesTest, KeysPassTheParentsOfTheFocusBeforeTheyArrive) {
    pressKey(toolkit(), "enter");
    pressKey(toolkit(), "f1");
    EXPECT_THAT(m_control.seen,
                ElementsAre(std::pair(WM_KEYDOWN, VK_RETURN), std::pair(WM_HELP, WPARAM{0})));
}

TEST_F(KeyGesturesTest, AConsumedKeyDoesNotArrive) {
    m_control.consumes = true;
    typeText(toolkit(), L"5");
    EXPECT_EQ(m_edit.GetWindowText(), L"");
    EXPECT_THAT(m_control.seen, ElementsAre(std::pair(kCharMessage, WPARAM{L'5'})));
}

TEST_F(KeyGesturesTest, ShiftIsHeldUntilItIsLetGo) {
    EXPECT_GE(GetKeyState(VK_SHIFT), 0);
    holdKey(toolkit(), "shift", true);
    holdKey(toolkit(), "shift", true);
    EXPECT_LT(GetKeyState(VK_SHIFT), 0);
    holdKey(toolkit(), "shift", false);
    EXPECT_GE(GetKeyState(VK_SHIFT), 0);
    EXPECT_THROW(holdKey(toolkit(), "enter", true), GestureError);
}

TEST_F(KeyGesturesTest, AKeyCanBeSentToAnotherWindow) {
    pressKey(toolkit(), "f1", m_toolPanel->m_hWnd);
    EXPECT_EQ(m_toolPanel->of(WM_HELP).size(), 1U);
    EXPECT_TRUE(m_control.seen.empty());
}

TEST_F(KeyGesturesTest, AnUnknownKeyIsAnError) {
    EXPECT_THROW(pressKey(toolkit(), "any"), GestureError);
    for (const std::string& name : keyNames())
        EXPECT_NO_THROW(pressKey(toolkit(), name)) << name;
}

TEST_F(KeyGesturesTest, BlurringGivesTheFocusToTheDrawingView) {
    blur(toolkit());
    EXPECT_EQ(windows().focus(), frame().drawingView().m_hWnd);
}

TEST_F(KeyGesturesTest, AFieldThatIsNotOnShowTakesNoFocus) {
    m_panel.ShowWindow(SW_HIDE);
    EXPECT_THROW(focusField(toolkit(), m_edit.m_hWnd), GestureError);
}

}  // namespace
}  // namespace workbench::gestures
