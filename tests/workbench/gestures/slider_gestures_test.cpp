#include "workbench/gestures/slider_gestures.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/gesture_error.h"
#include "workbench/toolkit/input_messages.h"

namespace workbench::gestures {
namespace {

class SliderGesturesTest : public ToolkitTest {
protected:
    SliderGesturesTest() {
        m_slider.Create(WS_CHILD | WS_VISIBLE, {0, 0, 100, 16}, m_toolPanel, 10001, 2);
        m_slider.SetSliderRange(0, 10000);
    }
    Listening<CQrUiProgSliderCtrl> m_slider;
};

TEST_F(SliderGesturesTest, EachPositionIsOneMoveBetweenPressAndRelease) {
    dragSlider(toolkit(), m_slider.m_hWnd, {1234, 1235});
    releaseSlider(toolkit(), m_slider.m_hWnd);
    EXPECT_EQ(m_slider.of(kLeftButtonDown).size(), 1U);
    EXPECT_EQ(m_slider.of(WM_MOUSEMOVE).size(), 2U);
    EXPECT_EQ(m_slider.of(kLeftButtonUp).size(), 1U);
    EXPECT_EQ(m_slider.GetSliderPos(), 1235);
}

TEST_F(SliderGesturesTest, OnlyAFineMoveHoldsTheControlKey) {
    dragSlider(toolkit(), m_slider.m_hWnd, {1234, 10000});
    const std::vector<Received> moves = m_slider.of(WM_MOUSEMOVE);
    EXPECT_EQ(moves[0].wParam, kLeftButtonHeld | kControlHeld);
    EXPECT_EQ(moves[1].wParam, kLeftButtonHeld);
}

TEST_F(SliderGesturesTest, APositionBeyondTheRangeEndsAtItsEnd) {
    dragSlider(toolkit(), m_slider.m_hWnd, {20000});
    EXPECT_EQ(m_slider.GetSliderPos(), 10000);
}

TEST_F(SliderGesturesTest, OnlySlidersOnShowCanBeDragged) {
    EXPECT_THROW(dragSlider(toolkit(), m_toolPanel->m_hWnd, {1}), GestureError);
    EXPECT_THROW(releaseSlider(toolkit(), nullptr), GestureError);
    m_panel.ShowWindow(SW_HIDE);
    EXPECT_THROW(dragSlider(toolkit(), m_slider.m_hWnd, {1}), GestureError);
}

}  // namespace
}  // namespace workbench::gestures
