#pragma once

#include "workbench/resources/png_picture.h"
#include "workbench/windows/handle_table.h"

#include <hostapi/window.h>

#include <cstddef>

namespace workbench {

/// The living fonts and icons, by handle.
class GdiTable {
public:
    WPARAM addFont(const LOGFONT& font);
    /// The font of a handle; null for a stale one.
    const LOGFONT* findFont(WPARAM font) const { return m_fonts.find(font); }
    /// Ends a font. False for a stale handle.
    bool removeFont(WPARAM font) { return m_fonts.take(font) != nullptr; }
    /// How many fonts live.
    std::size_t fontCount() const { return m_fonts.count(); }

    HICON addIcon(PngPicture picture);
    /// The picture of an icon; null for a stale handle.
    const PngPicture* findIcon(HICON icon) const { return m_icons.find(icon); }
    /// Ends an icon. False for a stale handle.
    bool removeIcon(HICON icon) { return m_icons.take(icon) != nullptr; }
    /// How many icons live.
    std::size_t iconCount() const { return m_icons.count(); }

    /// Gives a device context a handle for as long as it draws.
    HDC addContext(CDC& context);
    /// The context of a handle; null for a stale one.
    CDC* findContext(HDC context) const;
    void removeContext(HDC context) { m_contexts.take(context); }

private:
    HandleTable<WPARAM, LOGFONT> m_fonts;
    HandleTable<HICON, PngPicture> m_icons;
    HandleTable<HDC, CDC*> m_contexts;  // not owned
};

}  // namespace workbench
