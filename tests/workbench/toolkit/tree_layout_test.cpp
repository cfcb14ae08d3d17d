#include "workbench/toolkit/tree_layout.h"

#include <gtest/gtest.h>

namespace workbench {
namespace {

TreeRowSetup usual() {
    TreeRowSetup setup;
    setup.level = 1;
    setup.hasButton = true;
    setup.hasRootLine = true;
    setup.hasPicture = true;
    setup.characters = 3;
    return setup;
}

TEST(TreeLayoutTest, ARowHasButtonPictureAndLabelSideBySide) {
    const TreeRowParts parts = partsOfRow(usual(), 18);
    EXPECT_EQ(parts.button, (CRect{16, 18, 32, 36}));
    EXPECT_EQ(parts.picture, (CRect{32, 19, 48, 35}));
    EXPECT_EQ(parts.label, (CRect{48, 18, 77, 36}));
}

TEST(TreeLayoutTest, WithoutLinesAtTheRootTheTopLevelHasNoRoomForAButton) {
    TreeRowSetup setup = usual();
    setup.level = 0;
    setup.hasRootLine = false;
    const TreeRowParts parts = partsOfRow(setup, 0);
    EXPECT_EQ(parts.button, CRect{});
    EXPECT_EQ(parts.picture.left, 0);
}

TEST(TreeLayoutTest, WithoutPicturesTheLabelStandsInTheirPlace) {
    TreeRowSetup setup = usual();
    setup.hasPicture = false;
    EXPECT_EQ(partsOfRow(setup, 0).label.left, 32);
}

TEST(TreeLayoutTest, EachPointOfARowIsOnOnePart) {
    const TreeRowParts parts = partsOfRow(usual(), 18);
    EXPECT_EQ(partAt(parts, {0, 20}), TreePart::Indent);
    EXPECT_EQ(partAt(parts, {15, 20}), TreePart::Indent);
    EXPECT_EQ(partAt(parts, {16, 20}), TreePart::Button);
    EXPECT_EQ(partAt(parts, {31, 20}), TreePart::Button);
    EXPECT_EQ(partAt(parts, {32, 18}), TreePart::Picture);
    EXPECT_EQ(partAt(parts, {48, 20}), TreePart::Label);
    EXPECT_EQ(partAt(parts, {76, 20}), TreePart::Label);
    EXPECT_EQ(partAt(parts, {77, 20}), TreePart::Right);
}

TEST(TreeLayoutTest, WhereAButtonWouldBeIsIndentForAnItemWithoutOne) {
    TreeRowSetup setup = usual();
    setup.hasButton = false;
    EXPECT_EQ(partAt(partsOfRow(setup, 0), {20, 5}), TreePart::Indent);
}

}  // namespace
}  // namespace workbench
