#include "workbench/toolkit/row_layout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace workbench {
namespace {

using testing::ElementsAre;
using Kind = RowItem::Kind;

int sixteenHigh(std::size_t /*index*/, int /*width*/) {
    return 16;
}

std::vector<CRect> place(const std::vector<RowItem>& items, int width,
                         const RowMetrics& metrics = {}) {
    return layoutRows(items, width, metrics, sixteenHigh).items;
}

TEST(RowLayoutTest, NoItemsTakeNoHeight) {
    EXPECT_EQ(layoutRows({}, 200, {}, sixteenHigh).height, 0);
}

TEST(RowLayoutTest, ButtonsFlyoutsAndSeparatorsHaveFixedWidths) {
    EXPECT_THAT(place({{Kind::Button}, {Kind::Flyout}, {Kind::Separator}}, 200),
                ElementsAre(CRect{0, 0, 22, 22}, CRect{22, 0, 56, 22}, CRect{56, 0, 62, 22}));
}

TEST(RowLayoutTest, LargeIconsMakeLargerButtons) {
    EXPECT_THAT(place({{Kind::Button}, {Kind::Flyout}}, 200, {.iconSize = 32}),
                ElementsAre(CRect{0, 0, 38, 38}, CRect{38, 0, 88, 38}));
}

TEST(RowLayoutTest, WhatDoesNotFitBeginsANewRow) {
    EXPECT_THAT(place({{Kind::Button}, {Kind::Button}, {Kind::Button}}, 65),
                ElementsAre(CRect{0, 0, 22, 22}, CRect{22, 0, 44, 22}, CRect{0, 24, 22, 46}));
}

TEST(RowLayoutTest, AnItemWiderThanThePanelStandsAlone) {
    EXPECT_THAT(place({{Kind::Flyout}, {Kind::Button}}, 10),
                ElementsAre(CRect{0, 0, 34, 22}, CRect{0, 24, 22, 46}));
}

TEST(RowLayoutTest, ARowBreakBeginsANewRowAndTakesNoPlace) {
    const RowLayout layout =
        layoutRows({{Kind::Button}, {Kind::RowBreak}, {Kind::Button}}, 200, {}, sixteenHigh);
    EXPECT_THAT(layout.items, ElementsAre(CRect{0, 0, 22, 22}, CRect{}, CRect{0, 24, 22, 46}));
    EXPECT_EQ(layout.height, 46);
}

TEST(RowLayoutTest, RowBreaksInARowMakeNoEmptyRows) {
    EXPECT_EQ(layoutRows({{Kind::RowBreak}, {Kind::RowBreak}, {Kind::Button}}, 200, {}, sixteenHigh)
                  .height,
              22);
}

TEST(RowLayoutTest, HiddenItemsTakeNoPlace) {
    EXPECT_THAT(place({{Kind::Button, true}, {Kind::Button}}, 200),
                ElementsAre(CRect{}, CRect{0, 0, 22, 22}));
}

TEST(RowLayoutTest, ControlsShareWhatTheirRowLeaves) {
    EXPECT_THAT(place({{Kind::Button}, {Kind::Control}, {Kind::Separator}, {Kind::Control}}, 229),
                ElementsAre(CRect{0, 0, 22, 22}, CRect{22, 3, 122, 19}, CRect{122, 0, 128, 22},
                            CRect{128, 3, 229, 19}));
}

TEST(RowLayoutTest, AControlNarrowerThanTheLeastBeginsANewRow) {
    EXPECT_THAT(place({{Kind::Button}, {Kind::Control}}, 61),
                ElementsAre(CRect{0, 0, 22, 22}, CRect{0, 24, 61, 40}));
    EXPECT_THAT(place({{Kind::Button}, {Kind::Control}}, 62),
                ElementsAre(CRect{0, 0, 22, 22}, CRect{22, 3, 62, 19}));
}

TEST(RowLayoutTest, AControlThatStandsAloneHasItsRowForItself) {
    EXPECT_THAT(
        place({{Kind::Button}, {.kind = Kind::Control, .alone = true}, {Kind::Button}}, 200),
        ElementsAre(CRect{0, 0, 22, 22}, CRect{0, 24, 200, 40}, CRect{0, 42, 22, 64}));
}

TEST(RowLayoutTest, AControlIsAskedForItsHeightAtItsWidth) {
    std::vector<int> asked;
    const RowLayout layout = layoutRows({{Kind::Control}, {Kind::Button}}, 100, {},
                                        [&asked](std::size_t index, int width) {
                                            asked.push_back(static_cast<int>(index));
                                            asked.push_back(width);
                                            return 50;
                                        });
    EXPECT_THAT(asked, ElementsAre(0, 78));
    EXPECT_EQ(layout.height, 50);
    EXPECT_EQ(layout.items[1], (CRect{78, 14, 100, 36}));
}

TEST(RowLayoutTest, AnIndentIsLeftFreeInEachRow) {
    EXPECT_THAT(place({{Kind::Button}, {Kind::RowBreak}, {Kind::Button}}, 200, {.indent = 24}),
                ElementsAre(CRect{24, 0, 46, 22}, CRect{}, CRect{24, 24, 46, 46}));
}

}  // namespace
}  // namespace workbench
