#include "workbench/desktop/mirror/bar_parts.h"

#include "workbench/desktop/look/text.h"
#include "workbench/toolkit/floating_frame.h"
#include "workbench/toolkit/main_frame.h"
#include "workbench/toolkit/palette_set_widget.h"
#include "workbench/toolkit/toolkit.h"

namespace workbench::desktop {

namespace {

constexpr int kCornerSize = 12;  // pixels

}  // namespace

BarParts partsOfDockedBar(int width) {
    constexpr int kHeight = PaletteSetWidget::kGripHeight;
    BarParts parts;
    parts.close = QRect(width - kHeight, 0, kHeight, kHeight);
    parts.anchor = parts.close.translated(-kHeight, 0);
    parts.grip = QRect(0, 0, parts.anchor.left(), kHeight);
    return parts;
}

FloatingParts partsOfFloatingFrame(int width, int height) {
    constexpr int kCaption = FloatingFrame::kCaption;
    FloatingParts parts;
    parts.close = QRect(width - kCaption, 0, kCaption, kCaption);
    parts.caption = QRect(0, 0, width, kCaption);
    parts.corner = QRect(width - kCornerSize, height - kCornerSize, kCornerSize, kCornerSize);
    return parts;
}

bool isFloatingFrame(MainFrame& frame, const Window& window) {
    return setInFloatingFrame(frame, window) != nullptr;
}

CQrUiPaletteSet* setInFloatingFrame(MainFrame& frame, const Window& window) {
    if (window.parent != nullptr || window.object == &frame.frame())
        return nullptr;
    for (CQrUiPaletteSet* set : frame.bars()) {
        if (frame.frameOf(*set) == window.object)
            return set;
    }
    return nullptr;
}

QString titleOfFloatingFrame(Toolkit& toolkit, const Window& window) {
    const CQrUiPaletteSet* set = setInFloatingFrame(toolkit.frame(), window);
    return set == nullptr ? QString() : toQt(set->GetWindowText());
}

}  // namespace workbench::desktop
