#include "workbench/toolkit/control_widget.h"

#include <gtest/gtest.h>

namespace workbench {
namespace {

TEST(ControlWidgetTest, AControlOfNoSpecialKindKeepsItsHeight) {
    Window window;
    window.rect = {0, 0, 50, 37};
    EXPECT_EQ(ControlWidget().naturalHeight(window, 100), 37);
}

TEST(ControlWidgetTest, TheTipIsTheSameAllOver) {
    ControlWidget control;
    control.setTip(L"Fades");
    EXPECT_EQ(control.tipAt(Window(), {3, 4}), L"Fades");
    EXPECT_EQ(control.tip(), L"Fades");
}

TEST(ControlWidgetTest, TheLastTipSaysWhoShowsIt) {
    ControlWidget control;
    control.setRelayedTip(L"X");
    EXPECT_EQ(control.tip(), L"X");
    EXPECT_TRUE(control.isTipRelayed());
    control.setTip(L"Fades");
    EXPECT_EQ(control.tip(), L"Fades");
    EXPECT_FALSE(control.isTipRelayed());
}

}  // namespace
}  // namespace workbench
