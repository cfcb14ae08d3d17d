#pragma once

#include "workbench/windows/handle_table.h"
#include "workbench/windows/image_list.h"

#include <hostapi/window.h>

#include <cstddef>

namespace workbench {

/// The living fonts, icons and image lists, by handle.
class GdiTable {
public:
    /// `object` is whose font it is, which must live as long as the font; null: nobody's.
    WPARAM addFont(const LOGFONT& font, CFont* object = nullptr);
    /// The font of a handle; null for a stale one.
    const LOGFONT* findFont(WPARAM font) const;
    /// Whose font it is; null for a stale handle too.
    CFont* fontObject(WPARAM font) const;
    /// Ends a font. False for a stale handle.
    bool removeFont(WPARAM font) { return m_fonts.take(font) != nullptr; }
    /// How many fonts live.
    std::size_t fontCount() const { return m_fonts.count(); }

    HICON addIcon(SourcedPicture picture);
    /// The picture of an icon; null for a stale handle.
    const SourcedPicture* findIcon(HICON icon) const { return m_icons.find(icon); }
    /// Ends an icon. False for a stale handle.
    bool removeIcon(HICON icon) { return m_icons.take(icon) != nullptr; }
    /// How many icons live.
    std::size_t iconCount() const { return m_icons.count(); }

    HIMAGELIST addImageList(CSize pictureSize);
    /// The list of a handle; null for a stale one.
    ImageList* findImageList(HIMAGELIST list) const { return m_imageLists.find(list); }
    /// Ends a list. False for a stale handle.
    bool removeImageList(HIMAGELIST list) { return m_imageLists.take(list) != nullptr; }
    /// How many image lists live.
    std::size_t imageListCount() const { return m_imageLists.count(); }

    /// Gives a device context a handle for as long as it draws.
    HDC addContext(CDC& context);
    /// The context of a handle; null for a stale one.
    CDC* findContext(HDC context) const;
    void removeContext(HDC context) { m_contexts.take(context); }

private:
    struct Font {
        LOGFONT font;
        CFont* object;  // not owned; null: nobody's
    };

    HandleTable<WPARAM, Font> m_fonts;
    HandleTable<HICON, SourcedPicture> m_icons;
    HandleTable<HIMAGELIST, ImageList> m_imageLists;
    HandleTable<HDC, CDC*> m_contexts;  // not owned
};

}  // namespace workbench
