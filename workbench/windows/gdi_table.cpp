#include "workbench/windows/gdi_table.h"

#include <memory>
#include <utility>

namespace workbench {

WPARAM GdiTable::addFont(const LOGFONT& font, CFont* object) {
    return m_fonts.add(std::make_unique<Font>(Font{font, object}));
}

const LOGFONT* GdiTable::findFont(WPARAM font) const {
    const Font* const found = m_fonts.find(font);
    return found == nullptr ? nullptr : &found->font;
}

CFont* GdiTable::fontObject(WPARAM font) const {
    const Font* const found = m_fonts.find(font);
    return found == nullptr ? nullptr : found->object;
}

HDC GdiTable::addContext(CDC& context) {
    return m_contexts.add(std::make_unique<CDC*>(&context));
}

CDC* GdiTable::findContext(HDC context) const {
    CDC* const* const found = m_contexts.find(context);
    return found == nullptr ? nullptr : *found;
}

HICON GdiTable::addIcon(SourcedPicture picture) {
    return m_icons.add(std::make_unique<SourcedPicture>(std::move(picture)));
}

HIMAGELIST GdiTable::addImageList(CSize pictureSize) {
    return m_imageLists.add(std::make_unique<ImageList>(pictureSize));
}

}  // namespace workbench
