#include "workbench/desktop/look/pictures.h"

#include "workbench/toolkit/picture_table.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>

namespace workbench::desktop {
namespace {

class PicturesTest : public testing::Test {
protected:
    /// A square of one colour.
    HBITMAP add(int size, const QColor& colour) { return m_table.add("KEY", square(size, colour)); }
    static std::vector<std::uint8_t> square(int size, const QColor& colour) {
        QImage image(size, size, QImage::Format_RGBA8888);
        image.fill(colour);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        image.save(&buffer, "PNG");
        return {bytes.begin(), bytes.end()};
    }

    PictureTable m_table;
    Pictures m_pictures{m_table};
};

TEST_F(PicturesTest, PicturesAreDecoded) {
    const QPixmap& picture = m_pictures.of(add(16, Qt::red));
    EXPECT_EQ(picture.size(), QSize(16, 16));
    EXPECT_EQ(picture.toImage().pixelColor(3, 3), QColor(Qt::red));
}

TEST_F(PicturesTest, NullAndWhatIsNoPictureAreEmpty) {
    EXPECT_TRUE(m_pictures.of(nullptr).isNull());
    EXPECT_TRUE(m_pictures.of(m_table.add("BAD", {1, 2, 3})).isNull());
    EXPECT_TRUE(m_pictures.fit(nullptr, nullptr, 16, 1.0).isNull());
}

TEST_F(PicturesTest, OnAFinerScreenTheLargePictureIsShownAtTheSamePlace) {
    const HBITMAP small = add(16, Qt::red);
    const HBITMAP large = add(32, Qt::blue);
    EXPECT_EQ(m_pictures.fit(small, large, 16, 1.0).width(), 16);
    const QPixmap fine = m_pictures.fit(small, large, 16, 2.0);
    EXPECT_EQ(fine.width(), 32);
    EXPECT_EQ(fine.devicePixelRatio(), 2.0);
    EXPECT_EQ(m_pictures.fit(small, nullptr, 16, 2.0).deviceIndependentSize(), QSizeF(16, 16));
}

TEST_F(PicturesTest, WithoutALargePictureTheFineFormIsShown) {
    const HBITMAP both = m_table.add("KEY", square(16, Qt::red), square(32, Qt::green));
    EXPECT_EQ(m_pictures.fit(both, nullptr, 16, 1.0).width(), 16);
    const QPixmap fine = m_pictures.fit(both, nullptr, 16, 2.0);
    EXPECT_EQ(fine.width(), 32);
    EXPECT_EQ(fine.deviceIndependentSize(), QSizeF(16, 16));
    EXPECT_EQ(fine.toImage().pixelColor(3, 3), QColor(Qt::green));
    const QPixmap large = m_pictures.fit(both, add(32, Qt::blue), 16, 2.0);
    EXPECT_EQ(large.toImage().pixelColor(3, 3), QColor(Qt::blue));
}

}  // namespace
}  // namespace workbench::desktop
