#include "workbench/desktop/mirror/step_painter.h"

#include "tests/workbench/desktop/mirror/dropdown_mirror_fixture.h"

#include <QPainter>

namespace workbench::desktop {

class StepPainterTest : public DropdownMirrorTest {
protected:
    QImage paint(const std::vector<DrawingStep>& steps) {
        QImage image(40, 20, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        paintSteps(painter, m_stage, steps);
        return image;
    }
};

TEST_F(StepPainterTest, StepsCoverEachOtherInTheirOrder) {
    const QImage image =
        paint({FillStep{{0, 0, 20, 20}, 0x0000ff}, FillStep{{10, 0, 20, 20}, 0xff0000}});
    EXPECT_EQ(image.pixelColor(5, 5), QColor(255, 0, 0));
    EXPECT_EQ(image.pixelColor(15, 5), QColor(0, 0, 255));
    EXPECT_EQ(image.pixelColor(25, 5), QColor(Qt::white));
}

TEST_F(StepPainterTest, AGradientRunsFromLeftToRight) {
    const QImage image = paint({GradientStep{{0, 0, 40, 20}, 0xffffff, 0x000000}});
    EXPECT_GT(image.pixelColor(2, 10).red(), 230);
    EXPECT_LT(image.pixelColor(37, 10).red(), 40);
    EXPECT_EQ(image.pixelColor(20, 2), image.pixelColor(20, 18));
}

TEST_F(StepPainterTest, WhatIsTransparentLetsThroughWhatWasThere) {
    PngPicture picture;
    picture.width = 2;
    picture.height = 1;
    picture.rgba = {255, 0, 255, 0, 0, 255, 0, 255};
    const QImage image = paint({PictureStep{{3, 4, 5, 5}, picture}});
    EXPECT_EQ(image.pixelColor(3, 4), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(4, 4), QColor(0, 255, 0));
}

TEST_F(StepPainterTest, ATextIsInTheMiddleOfItsLine) {
    const QImage image =
        paint({TextStep{{2, 0, 40, 20}, L"HHH", 0x0000ff, DT_SINGLELINE | DT_VCENTER, 0}});
    int first = -1;
    int last = -1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == QColor(Qt::white))
                continue;
            first = first < 0 ? y : first;
            last = y;
        }
    }
    EXPECT_GE(first, 3);
    EXPECT_LE(last, 17);
}

TEST_F(StepPainterTest, AButtonThatDrawsItselfIsShownAsItIsNow) {
    clickField();
    EXPECT_EQ(check().grab().toImage().pixelColor(140, 3), QColor(255, 0, 0));
    click(check());
    rest();
    EXPECT_EQ(check().grab().toImage().pixelColor(140, 5), QColor(0, 255, 0));
}

}  // namespace workbench::desktop
