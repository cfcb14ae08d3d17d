#include "workbench/windows/window.h"

#include <gtest/gtest.h>

namespace workbench {

TEST(PlainWindowTest, APlainWidgetHandlesNothingAndSaysNothing) {
    Widget widget;
    Window window;
    LRESULT answer = 7;
    EXPECT_FALSE(widget.handle(window, WM_SIZE, 0, 0, answer));
    EXPECT_EQ(answer, 7);
    EXPECT_FALSE(widget.reportsFocus());
    EXPECT_EQ(widget.describe(window), "");
}

TEST(PlainWindowTest, TheVisibleStyleIsOneBit) {
    Window window;
    window.style = WS_CHILD;
    EXPECT_FALSE(window.hasVisibleStyle());
    window.style |= WS_VISIBLE;
    EXPECT_TRUE(window.hasVisibleStyle());
}

}  // namespace workbench
