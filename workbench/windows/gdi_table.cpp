#include "workbench/windows/gdi_table.h"

#include <memory>
#include <utility>

namespace workbench {

WPARAM GdiTable::addFont(const LOGFONT& font) {
    return m_fonts.add(std::make_unique<LOGFONT>(font));
}

HICON GdiTable::addIcon(PngPicture picture) {
    return m_icons.add(std::make_unique<PngPicture>(std::move(picture)));
}

}  // namespace workbench
