#include "workbench/desktop/mirror/popup_mirror.h"

#include "workbench/desktop/look/shapes.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/windows/window_system.h"

#include <algorithm>

namespace workbench::desktop {

QRect PopupMirror::placeOf(const Window& window) const {
    QRect place = toQt(window.rect);
    const QWidget* const around = parentWidget();
    if (m_opener != nullptr && around->isAncestorOf(m_opener)) {
        const QRect field = toQt(stage().windows.screenRect(m_opener->handle()));
        place.moveTopLeft(m_opener->mapTo(around, place.topLeft() - field.topLeft()));
    }
    // Rather over the field than beyond the window's edge.
    place.moveTop(std::max(0, std::min(place.top(), around->height() - place.height())));
    place.moveLeft(std::max(0, std::min(place.left(), around->width() - place.width())));
    return place;
}

void PopupMirror::showEvent(QShowEvent* event) {
    raise();
    MirrorWidget::showEvent(event);
}

}  // namespace workbench::desktop
