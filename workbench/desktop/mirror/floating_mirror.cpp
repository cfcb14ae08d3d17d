#include "workbench/desktop/mirror/floating_mirror.h"

#include "workbench/desktop/look/shapes.h"
#include "workbench/desktop/mirror/bar_parts.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/toolkit/palette_set_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <QCloseEvent>
#include <QMouseEvent>
#include <utility>

namespace workbench::desktop {

namespace {

constexpr int kEdgeWidth = 40;  // pixels at the side of the host's window that dock

}  // namespace

FloatingMirror::FloatingMirror(Stage& stage, HWND window, QWidget* owner)
    : MirrorWidget(stage, window, owner) {
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
}

CQrUiPaletteSet* FloatingMirror::shownSet() const {
    const Window* const window = host();
    return window == nullptr ? nullptr : setInFloatingFrame(stage().toolkit.frame(), *window);
}

void FloatingMirror::mousePressEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    const FloatingParts parts = partsOfFloatingFrame(width(), height());
    m_last = event->globalPosition().toPoint();
    if (parts.close.contains(point))
        close();
    else if (parts.corner.contains(point))
        m_hold = Hold::Corner;
    else if (parts.caption.contains(point))
        m_hold = Hold::Caption;
}

void FloatingMirror::mouseMoveEvent(QMouseEvent* event) {
    const QPoint now = event->globalPosition().toPoint();
    if (m_hold != Hold::None)
        moveOrSize(now - m_last);
    m_last = now;
}

void FloatingMirror::mouseReleaseEvent(QMouseEvent* event) {
    const Hold held = std::exchange(m_hold, Hold::None);
    if (mouseGrabber() == this)
        releaseMouse();
    if (held == Hold::Caption)
        dockIfAtEdge(event->globalPosition().toPoint());
}

void FloatingMirror::hold(QPoint screenPoint) {
    m_hold = Hold::Caption;
    m_last = screenPoint;
    grabMouse();
}

void FloatingMirror::mouseDoubleClickEvent(QMouseEvent* event) {
    if (!partsOfFloatingFrame(width(), height()).caption.contains(event->position().toPoint()))
        return;
    stage().pump.act([this] {
        if (CQrUiPaletteSet* set = shownSet())
            stage().toolkit.frame().dock(*set, stage().toolkit.paletteSets().of(set).place.edge);
    });
}

void FloatingMirror::closeEvent(QCloseEvent* event) {
    // Behind a host's window that has been closed it keeps nothing open.
    if (parentWidget() == nullptr || !parentWidget()->window()->isVisible())
        return;
    event->ignore();
    stage().pump.act([this] {
        if (CQrUiPaletteSet* set = shownSet())
            stage().toolkit.frame().close(*set);
    });
}

void FloatingMirror::moveOrSize(QPoint by) {
    stage().pump.act([this, by] {
        CQrUiPaletteSet* set = shownSet();
        if (set == nullptr)
            return;
        CRect rect = host()->rect;
        rect.right += by.x();
        rect.bottom += by.y();
        if (m_hold == Hold::Caption) {
            rect.left += by.x();
            rect.top += by.y();
        }
        stage().toolkit.frame().floatAt(*set, rect);
    });
}

void FloatingMirror::dockIfAtEdge(QPoint screenPoint) {
    const QWidget* const main = parentWidget();
    if (main == nullptr)
        return;
    const QPoint inside = main->mapFromGlobal(screenPoint);
    if (!main->rect().contains(inside))
        return;
    const bool atLeft = inside.x() < kEdgeWidth;
    const bool atRight = inside.x() >= main->width() - kEdgeWidth;
    if (!atLeft && !atRight)
        return;
    stage().pump.act([this, atLeft] {
        if (CQrUiPaletteSet* set = shownSet())
            stage().toolkit.frame().dock(*set, atLeft ? Edge::Left : Edge::Right);
    });
}

}  // namespace workbench::desktop
