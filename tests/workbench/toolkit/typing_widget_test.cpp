#include "workbench/toolkit/typing_widget.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/gestures/mouse_gestures.h"

#include <string>

namespace workbench {
namespace {

class TypingWidgetTest : public ToolkitTest {
protected:
    TypingWidgetTest() {
        frame().setOnTyped([this](wchar_t character) { m_typed += character; });
    }
    std::wstring takeTyped() { return std::exchange(m_typed, {}); }

    std::wstring m_typed;
};

TEST_F(TypingWidgetTest, AClickGivesTheFocus) {
    for (const HWND window : {frame().commandLine().m_hWnd, frame().drawingView().m_hWnd}) {
        gestures::clickAt(toolkit(), window, {5, 5});
        EXPECT_EQ(windows().focus(), window);
    }
    EXPECT_EQ(takeTyped(), L"");
}

TEST_F(TypingWidgetTest, AMoveDoesNot) {
    gestures::hoverAt(toolkit(), frame().commandLine().m_hWnd, {5, 5});
    EXPECT_EQ(windows().focus(), frame().drawingView().m_hWnd);
}

TEST_F(TypingWidgetTest, WhatIsTypedInTheDrawingOrTheCommandLineIsHandedOn) {
    for (const HWND window : {frame().commandLine().m_hWnd, frame().drawingView().m_hWnd}) {
        windows().setFocus(window);
        gestures::typeText(toolkit(), L"line");
        gestures::pressKey(toolkit(), "enter");
        gestures::pressKey(toolkit(), "escape");
        gestures::pressKey(toolkit(), "left");
        EXPECT_EQ(takeTyped(), L"line\n\x1b");
    }
}

TEST_F(TypingWidgetTest, AKeyThatASliderDoesNotWantIsHandedOn) {
    CQrUiProgSliderCtrl slider;
    slider.Create(WS_CHILD | WS_VISIBLE, {0, 0, 60, 16}, m_toolPanel, 8, 0);
    gestures::pressKey(toolkit(), "right", slider.m_hWnd);
    EXPECT_EQ(takeTyped(), L"");
    gestures::pressKey(toolkit(), "escape", slider.m_hWnd);
    EXPECT_EQ(takeTyped(), L"\x1b");
}

TEST_F(TypingWidgetTest, WhatIsTypedForNobodyIsLost) {
    frame().setOnTyped({});
    gestures::pressKey(toolkit(), "escape");
    EXPECT_EQ(takeTyped(), L"");
}

}  // namespace
}  // namespace workbench
