#include "workbench/desktop/look/pictures.h"

#include "workbench/base/input_error.h"
#include "workbench/toolkit/picture_table.h"

#include <QImage>

namespace workbench::desktop {

namespace {

/// More than a dashboard shows at a time; then those that are gone are let go.
constexpr qsizetype kMostDecoded = 2000;

using PixelsOf = PngPicture (PictureTable::*)(HBITMAP) const;

QPixmap decode(const PictureTable& table, HBITMAP picture, PixelsOf pixelsOf) {
    try {
        return pixmapOf((table.*pixelsOf)(picture));
    } catch (const InputError&) {
        return {};
    }
}

const QPixmap& decodedOnce(QHash<HBITMAP, QPixmap>& decoded, const PictureTable& table,
                           HBITMAP picture, PixelsOf pixelsOf) {
    const auto found = decoded.constFind(picture);
    if (found != decoded.constEnd())
        return *found;
    if (decoded.size() >= kMostDecoded)
        decoded.clear();
    return *decoded.insert(picture, decode(table, picture, pixelsOf));
}

}  // namespace

QPixmap pixmapOf(const PngPicture& picture) {
    const QImage image(picture.rgba.data(), static_cast<int>(picture.width),
                       static_cast<int>(picture.height), static_cast<int>(picture.width) * 4,
                       QImage::Format_RGBA8888);
    return QPixmap::fromImage(image);
}

const QPixmap& Pictures::of(HBITMAP picture) {
    return decodedOnce(m_decoded, m_table, picture, &PictureTable::pixels);
}

const QPixmap& Pictures::fineOf(HBITMAP picture) {
    return decodedOnce(m_fine, m_table, picture, &PictureTable::finePixels);
}

QPixmap Pictures::fit(HBITMAP small, HBITMAP large, int size, double pixelRatio) {
    QPixmap fitting = of(small);
    if (size * pixelRatio > fitting.width()) {
        const QPixmap finer = of(large).isNull() ? fineOf(small) : of(large);
        if (!finer.isNull())
            fitting = finer;
    }
    if (!fitting.isNull())
        fitting.setDevicePixelRatio(static_cast<double>(fitting.width()) / size);
    return fitting;
}

}  // namespace workbench::desktop
