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
    /// The picture to show `size` logical pixels large: the small one, or where that has too few pixels
    /// the large one, or without one the small one's fine form. It bears the ratio of its pixels to
    /// logical ones.
    QPixmap fit(HBITMAP small, HBITMAP large, int size, double pixelRatio);

private:
    const QPixmap& fineOf(HBITMAP picture);

    const PictureTable& m_table;
    QHash<HBITMAP, QPixmap> m_decoded;  // a handle is never given out again
    QHash<HBITMAP, QPixmap> m_fine;
};

}  // namespace workbench::desktop
