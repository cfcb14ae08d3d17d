#include "workbench/windows/gdi_table.h"

#include <memory>
#include <utility>

namespace workbench {

WPARAM GdiTable::addFont(const LOGFONT& font) {
    return m_fonts.add(std::make_unique<LOGFONT>(font));
}

HDC GdiTable::addContext(CDC& context) {
    return m_contexts.add(std::make_unique<CDC*>(&context));
}

CDC* GdiTable::findContext(HDC context) const {
    CDC* const* const found = m_contexts.find(context);
    return found == nullptr ? nullptr : *found;
}

HICON GdiTable::addIcon(PngPicture picture) {
    return m_icons.add(std::make_unique<PngPicture>(std::move(picture)));
}

}  // namespace workbench
