#include "workbench/desktop/look/pictures.h"

#include "workbench/base/input_error.h"
#include "workbench/toolkit/picture_table.h"

#include <QImage>

namespace workbench::desktop {

namespace {

/// More than a dashboard shows at a time; then those that are gone are let go.
constexpr qsizetype kMostDecoded = 2000;

QPixmap decode(const PictureTable& table, HBITMAP picture) {
    try {
        return pixmapOf(table.pixels(picture));
    } catch (const InputError&) {
        return {};
    }
}

}  // namespace

QPixmap pixmapOf(const PngPicture& picture) {
    const QImage image(picture.rgba.data(), static_cast<int>(picture.width),
                       static_cast<int>(picture.height), static_cast<int>(picture.width) * 4,
                       QImage::Format_RGBA8888);
    return QPixmap::fromImage(image);
}

const QPixmap& Pictures::of(HBITMAP picture) {
    const auto found = m_decoded.constFind(picture);
    if (found != m_decoded.constEnd())
        return *found;
    if (m_decoded.size() >= kMostDecoded)
        m_decoded.clear();
    return *m_decoded.insert(picture, decode(m_table, picture));
}

QPixmap Pictures::fit(HBITMAP small, HBITMAP large, int size, double pixelRatio) {
    const bool isFine = size * pixelRatio > of(small).width() && !of(large).isNull();
    QPixmap fitting = isFine || of(small).isNull() ? of(large) : of(small);
    if (!fitting.isNull())
        fitting.setDevicePixelRatio(static_cast<double>(fitting.width()) / size);
    return fitting;
}

}  // namespace workbench::desktop
