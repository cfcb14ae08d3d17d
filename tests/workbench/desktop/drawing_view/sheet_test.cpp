#include "workbench/desktop/drawing_view/sheet.h"

#include <gtest/gtest.h>

namespace workbench::desktop {
namespace {

drawing::Layout paper(double width, double height) {
    drawing::Layout layout;
    layout.paperWidth = width;
    layout.paperHeight = height;
    return layout;
}

drawing::Viewport viewportAt(const drawing::Vec3& lowerLeft, const drawing::Vec3& upperRight) {
    drawing::Viewport viewport;
    viewport.lowerLeft = lowerLeft;
    viewport.upperRight = upperRight;
    return viewport;
}

TEST(SheetTest, AllOfThePaperLiesInTheMiddleOfTheRoom) {
    EXPECT_EQ(Sheet(paper(400, 200), {840, 640}).place(), QRect(20, 120, 800, 400));
    EXPECT_EQ(Sheet(paper(200, 400), {840, 640}).place(), QRect(270, 20, 300, 600));
}

TEST(SheetTest, AViewportLiesWhereItsMillimetresSay) {
    const Sheet sheet(paper(400, 200), {840, 640});
    EXPECT_EQ(sheet.placeOf(viewportAt({0, 0, 0}, {400, 200, 0})), sheet.place());
    EXPECT_EQ(sheet.placeOf(viewportAt({100, 50, 0}, {200, 150, 0})), QRect(220, 220, 200, 200));
}

TEST(SheetTest, ARoomSmallerThanItsMarginHasNoPaper) {
    const Sheet sheet(paper(400, 200), {30, 640});
    EXPECT_TRUE(sheet.place().isEmpty());
    EXPECT_TRUE(sheet.placeOf(viewportAt({100, 50, 0}, {200, 150, 0})).isEmpty());
}

}  // namespace
}  // namespace workbench::desktop
