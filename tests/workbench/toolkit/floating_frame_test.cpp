#include "workbench/toolkit/floating_frame.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"

namespace workbench {
namespace {

class FloatingFrameTest : public ToolkitTest {
protected:
    CRect m_room;
};

TEST_F(FloatingFrameTest, TheDockBarFillsTheFrameWithinItsBorders) {
    FloatingFrame floating(windows(), {100, 100, 300, 400}, m_room);
    EXPECT_EQ(windows().find(floating.dockBar().m_hWnd)->rect, (CRect{4, 18, 196, 296}));
    floating.frame().SetWindowPos(0, 0, 100, 100, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(windows().find(floating.dockBar().m_hWnd)->rect, (CRect{4, 18, 96, 96}));
}

TEST_F(FloatingFrameTest, AFrameSmallerThanItsBordersHasNothingInside) {
    FloatingFrame floating(windows(), {0, 0, 3, 3}, m_room);
    EXPECT_EQ(floating.dockBar().GetClientRect(), CRect{});
}

TEST_F(FloatingFrameTest, ItIsMadeHiddenAndEndsWithItsObject) {
    const std::size_t before = windows().count();
    {
        FloatingFrame floating(windows(), {0, 0, 100, 100}, m_room);
        EXPECT_FALSE(floating.frame().IsWindowVisible());
    }
    EXPECT_EQ(windows().count(), before);
}

TEST_F(FloatingFrameTest, ItGrowsNoFurtherThanTheRoom) {
    FloatingFrame floating(windows(), {100, 100, 300, 400}, m_room);
    m_room = {0, 0, 1000, 800};
    floating.frame().SetWindowPos(0, 0, 200, 1500, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(windows().find(floating.frame().m_hWnd)->rect, (CRect{100, 100, 300, 800}));
    EXPECT_EQ(windows().find(floating.dockBar().m_hWnd)->rect, (CRect{4, 18, 196, 696}));
}

TEST_F(FloatingFrameTest, LowInTheRoomItGrowsUpwards) {
    FloatingFrame floating(windows(), {100, 760, 300, 790}, m_room);
    m_room = {0, 0, 1000, 800};
    floating.frame().SetWindowPos(0, 0, 200, 100, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(windows().find(floating.frame().m_hWnd)->rect, (CRect{100, 700, 300, 800}));
    floating.frame().SetWindowPos(0, 0, 200, 900, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(windows().find(floating.frame().m_hWnd)->rect, (CRect{100, 600, 300, 800}));
}

TEST_F(FloatingFrameTest, APlaceOnAScreenThatIsGoneComesBackIntoReach) {
    const CRect room{0, 0, 1000, 800};
    EXPECT_EQ(FloatingFrame::reachable({100, 100, 300, 400}, room), (CRect{100, 100, 300, 400}));
    EXPECT_EQ(FloatingFrame::reachable({2500, 100, 2700, 400}, room), (CRect{960, 100, 1160, 400}));
    EXPECT_EQ(FloatingFrame::reachable({-900, -50, -700, 250}, room), (CRect{-160, 0, 40, 300}));
    EXPECT_EQ(FloatingFrame::reachable({100, 900, 300, 1200}, room), (CRect{100, 782, 300, 1082}));
    EXPECT_EQ(FloatingFrame::reachable({2500, 100, 2700, 400}, {}), (CRect{2500, 100, 2700, 400}));
}

}  // namespace
}  // namespace workbench
