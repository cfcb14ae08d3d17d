#include "workbench/toolkit/floating_frame.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"

namespace workbench {
namespace {

class FloatingFrameTest : public ToolkitTest {};

TEST_F(FloatingFrameTest, TheDockBarFillsTheFrameWithinItsBorders) {
    FloatingFrame floating(windows(), {100, 100, 300, 400});
    EXPECT_EQ(windows().find(floating.dockBar().m_hWnd)->rect, (CRect{4, 18, 196, 296}));
    floating.frame().SetWindowPos(0, 0, 100, 100, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(windows().find(floating.dockBar().m_hWnd)->rect, (CRect{4, 18, 96, 96}));
}

TEST_F(FloatingFrameTest, AFrameSmallerThanItsBordersHasNothingInside) {
    FloatingFrame floating(windows(), {0, 0, 3, 3});
    EXPECT_EQ(floating.dockBar().GetClientRect(), CRect{});
}

TEST_F(FloatingFrameTest, ItIsMadeHiddenAndEndsWithItsObject) {
    const std::size_t before = windows().count();
    {
        FloatingFrame floating(windows(), {0, 0, 100, 100});
        EXPECT_FALSE(floating.frame().IsWindowVisible());
    }
    EXPECT_EQ(windows().count(), before);
}

}  // namespace
}  // namespace workbench
