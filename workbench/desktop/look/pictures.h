#pragma once

#include <hostapi/types.h>

#include <QHash>
#include <QIcon>
#include <QPixmap>

namespace workbench {
class PictureTable;
struct PngPicture;
}  // namespace workbench

namespace workbench::desktop {

/// A decoded picture as a pixmap.
QPixmap pixmapOf(const PngPicture& picture);

/// The toolkit's pictures as pixmaps, decoded once each.
class Pictures {
public:
    explicit Pictures(const PictureTable& table) : m_table(table) {}

    /// A picture of a handle; empty for null, for a stale handle and for bytes that are no picture.
    const QPixmap& of(HBITMAP picture);
    /// The picture to show `size` logical pixels large: the small one, or on a finer screen the large
    /// one, if there is one. It bears the ratio of its pixels to logical ones.
    QPixmap fit(HBITMAP small, HBITMAP large, int size, double pixelRatio);

private:
    const PictureTable& m_table;
    QHash<HBITMAP, QPixmap> m_decoded;  // a handle is never given out again
};

}  // namespace workbench::desktop
