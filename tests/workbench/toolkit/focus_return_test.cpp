#include "workbench/toolkit/focus_return.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/item_gestures.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/gestures/slider_gestures.h"

namespace workbench {
namespace {

class FocusReturnTest : public ToolkitTest {
protected:
    FocusReturnTest() {
        m_control.Create(WS_CHILD | WS_VISIBLE, {0, 0, 50, 22}, m_toolPanel, 1, 0);
        addItemTo(m_control, kItemButton, L"TPB_ICON");
        m_edit.Create(WS_CHILD | WS_VISIBLE, {0, 0, 60, 20}, &m_control, 10001, 0);
        m_slider.Create(WS_CHILD | WS_VISIBLE, {0, 0, 60, 20}, &m_control, 10002, 2);
        addControlTo(m_control, m_edit);
        addControlTo(m_control, m_slider);
        addControlTo(*m_toolPanel, m_control);
        m_panelSet.UpdateLayout();
    }
    HWND view() { return frame().drawingView().m_hWnd; }

    CQrUiToolPanelItem& m_item = addItem(kItemButton, L"ID_A");
    ListeningToolPanel m_control;
    CQrUiInputEditCtrl m_edit;
    CQrUiProgSliderCtrl m_slider;
};

TEST_F(FocusReturnTest, AClickOnAToolTakesTheFocusFromAField) {
    gestures::focusField(toolkit(), m_edit.m_hWnd);
    gestures::clickItem(toolkit(), m_item);
    EXPECT_EQ(windows().focus(), view());
}

TEST_F(FocusReturnTest, APaletteMayRefuse) {
    m_palette->releasesFocus = false;
    gestures::focusField(toolkit(), m_edit.m_hWnd);
    gestures::clickItem(toolkit(), m_item);
    EXPECT_EQ(windows().focus(), m_edit.m_hWnd);
}

TEST_F(FocusReturnTest, AFieldThatTheClickGaveTheFocusKeepsIt) {
    m_control.onClick = [this] { m_edit.SetFocus(); };
    gestures::clickIcon(toolkit(), m_control.m_hWnd);
    EXPECT_EQ(windows().focus(), m_edit.m_hWnd);
    gestures::clickIcon(toolkit(), m_control.m_hWnd);
    EXPECT_EQ(windows().focus(), m_edit.m_hWnd);
}

TEST_F(FocusReturnTest, APressElsewhereLeavesTheFieldBeforeTheClickComes) {
    gestures::focusField(toolkit(), m_edit.m_hWnd);
    HWND focusInClick = m_edit.m_hWnd;
    m_control.onClick = [&] { focusInClick = windows().focus(); };
    gestures::clickIcon(toolkit(), m_control.m_hWnd);
    EXPECT_EQ(focusInClick, view());
    gestures::focusField(toolkit(), m_edit.m_hWnd);
    gestures::dragSlider(toolkit(), m_slider.m_hWnd, {10});
    EXPECT_NE(windows().focus(), m_edit.m_hWnd);
}

TEST_F(FocusReturnTest, LeavingTakesTheFocusFromASliderAndNotFromAField) {
    gestures::focusField(toolkit(), m_edit.m_hWnd);
    gestures::leave(toolkit());
    EXPECT_EQ(windows().focus(), m_edit.m_hWnd);
    m_slider.SetFocus();
    gestures::hoverAt(toolkit(), m_slider.m_hWnd, {1, 1});
    gestures::leave(toolkit());
    EXPECT_EQ(windows().focus(), view());
}

TEST_F(FocusReturnTest, AFocusOutsideTheSetStaysWhereItIs) {
    const HWND commandLine = frame().commandLine().m_hWnd;
    windows().setFocus(commandLine);
    gestures::clickItem(toolkit(), m_item);
    EXPECT_EQ(windows().focus(), commandLine);
    giveFocusBack(toolkit(), nullptr, nullptr);
    EXPECT_EQ(windows().focus(), commandLine);
}

TEST_F(FocusReturnTest, AClickIntoTheDrawingTakesTheFocusOnlyIfThePalettesAgree) {
    gestures::focusField(toolkit(), m_edit.m_hWnd);
    m_palette->releasesFocus = false;
    gestures::clickAt(toolkit(), view(), {5, 5});
    EXPECT_EQ(windows().focus(), m_edit.m_hWnd);
    m_palette->releasesFocus = true;
    gestures::clickAt(toolkit(), view(), {5, 5});
    EXPECT_EQ(windows().focus(), view());
}

TEST_F(FocusReturnTest, WhileAControlsListIsDroppedNoGestureElsewhereTakesTheFocus) {
    CQrUiInputEditCtrl elsewhere;
    elsewhere.Create(WS_CHILD | WS_VISIBLE, {0, 0, 60, 20}, m_toolPanel, 10009, 0);
    addControlTo(*m_toolPanel, elsewhere);
    m_panelSet.UpdateLayout();
    bool dropped = true;
    m_control.answers[WM_QRUI_LIST_DROPPED] = [&dropped](WPARAM, LPARAM) {
        return LRESULT{dropped ? 1 : 0};
    };
    windows().setFocus(m_slider.m_hWnd);
    gestures::clickAt(toolkit(), view(), {5, 5});
    gestures::clickAt(toolkit(), frame().commandLine().m_hWnd, {5, 5});
    gestures::clickAt(toolkit(), elsewhere.m_hWnd, {5, 5});
    gestures::clickItem(toolkit(), m_item);
    gestures::pressKey(toolkit(), "tab");
    EXPECT_EQ(windows().focus(), m_slider.m_hWnd);
    gestures::clickAt(toolkit(), m_edit.m_hWnd, {5, 5});
    EXPECT_EQ(windows().focus(), m_edit.m_hWnd) << "within the control it goes where it likes";
    dropped = false;
    gestures::clickAt(toolkit(), elsewhere.m_hWnd, {5, 5});
    EXPECT_EQ(windows().focus(), elsewhere.m_hWnd);
}

TEST_F(FocusReturnTest, AControlThatEndsWhileItIsAskedTakesNobodysFocus) {
    gestures::focusField(toolkit(), m_edit.m_hWnd);
    m_control.answers[WM_QRUI_LIST_DROPPED] = [this](WPARAM, LPARAM) {
        m_control.DestroyWindow();
        return LRESULT{1};
    };
    gestures::clickAt(toolkit(), view(), {5, 5});
    EXPECT_EQ(windows().find(m_control.m_hWnd), nullptr);
    EXPECT_EQ(windows().focus(), nullptr);
}

}  // namespace
}  // namespace workbench
