#include "workbench/toolkit/dock_layout.h"

#include <gtest/gtest.h>

namespace workbench {
namespace {

constexpr CSize kClient{1000, 660};  // 600 above the command line

TEST(DockLayoutTest, WithoutBarsTheDrawingViewTakesAllAboveTheCommandLine) {
    const DockLayout layout = layoutDocks(kClient, {});
    EXPECT_EQ(layout.drawingView, (CRect{0, 0, 1000, 600}));
    EXPECT_EQ(layout.commandLine, (CRect{0, 600, 1000, 660}));
}

TEST(DockLayoutTest, ABarTakesItsWidthAndTheWholeEdge) {
    const DockLayout layout = layoutDocks(kClient, {{Edge::Right, 235, -1, true}});
    EXPECT_EQ(layout.rightDock, (CRect{765, 0, 1000, 600}));
    EXPECT_EQ(layout.drawingView, (CRect{0, 0, 765, 600}));
    EXPECT_EQ(layout.bars.front(), (CRect{0, 0, 235, 600}));
}

TEST(DockLayoutTest, AHiddenBarTakesNoPlaceButHasASize) {
    const DockLayout layout = layoutDocks(kClient, {{Edge::Left, 235, 100, false}});
    EXPECT_EQ(layout.leftDock.Width(), 0);
    EXPECT_EQ(layout.bars.front(), (CRect{0, 0, 235, 100}));
}

TEST(DockLayoutTest, AnAskedHeightStopsAtTheEdgesRoom) {
    EXPECT_EQ(layoutDocks(kClient, {{Edge::Right, 100, 313, true}}).bars.front().Height(), 313);
    EXPECT_EQ(layoutDocks(kClient, {{Edge::Right, 100, 900, true}}).bars.front().Height(), 600);
    EXPECT_EQ(layoutDocks(kClient, {{Edge::Right, 100, 0, true}}).bars.front().Height(), 60);
}

TEST(DockLayoutTest, BarsOfAnEdgeStandBelowEachOther) {
    const DockLayout layout = layoutDocks(
        kClient,
        {{Edge::Left, 100, 200, true}, {Edge::Left, 150, -1, true}, {Edge::Right, 90, -1, true}});
    EXPECT_EQ(layout.bars[0], (CRect{0, 0, 100, 200}));
    EXPECT_EQ(layout.bars[1], (CRect{0, 200, 150, 600}));
    EXPECT_EQ(layout.bars[2], (CRect{0, 0, 90, 600}));
    EXPECT_EQ(layout.drawingView, (CRect{150, 0, 910, 600}));
}

}  // namespace
}  // namespace workbench
