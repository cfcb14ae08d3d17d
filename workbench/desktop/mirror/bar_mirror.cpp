#include "workbench/desktop/mirror/bar_mirror.h"

#include "workbench/desktop/mirror/bar_parts.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/toolkit/palette_set_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <QApplication>
#include <QMouseEvent>
#include <algorithm>

namespace workbench::desktop {

namespace {

constexpr int kFloatingHeight = 500;  // pixels; a docked set is as high as its edge

CQrUiPaletteSet& setOf(const Window& window) {
    return *static_cast<CQrUiPaletteSet*>(window.object);
}

}  // namespace

bool BarMirror::isStrip() const {
    const Window* const window = host();
    const PaletteSetState& state = stage().toolkit.paletteSets().of(&setOf(*window));
    return state.place.anchored && width() < partsOfDockedBar(width()).smallestFull;
}

bool BarMirror::isOnGrip(QPoint point) const {
    const Window* const window = host();
    if (window == nullptr)
        return false;
    const bool floating = stage().toolkit.paletteSets().of(&setOf(*window)).place.floating;
    return !floating && (isStrip() || point.y() < PaletteSetWidget::kGripHeight);
}

void BarMirror::mousePressEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    if (event->button() == Qt::LeftButton && isOnGrip(point))
        m_pressed = point;
    else
        MirrorWidget::mousePressEvent(event);
}

void BarMirror::mouseMoveEvent(QMouseEvent* event) {
    if (!m_pressed) {
        MirrorWidget::mouseMoveEvent(event);
        return;
    }
    const QPoint way = event->position().toPoint() - *m_pressed;
    if (way.manhattanLength() < QApplication::startDragDistance())
        return;
    m_pressed.reset();
    const QPoint point = event->globalPosition().toPoint();
    const CQrUiPaletteSet& set = setOf(*host());
    floatUnder(point);
    const CFrameWnd* const frame = stage().toolkit.frame().frameOf(set);
    if (set.IsFloating() != 0 && frame != nullptr && stage().holdFloating)
        stage().holdFloating(frame->m_hWnd, point);
}

void BarMirror::mouseReleaseEvent(QMouseEvent* event) {
    if (!m_pressed) {
        MirrorWidget::mouseReleaseEvent(event);
        return;
    }
    m_pressed.reset();
    click(event->position().toPoint());
}

void BarMirror::mouseDoubleClickEvent(QMouseEvent* event) {
    if (isOnGrip(event->position().toPoint()) && !isStrip())
        floatUnder(event->globalPosition().toPoint());
    else
        MirrorWidget::mouseDoubleClickEvent(event);
}

void BarMirror::click(QPoint point) {
    stage().pump.act([this, point] {
        CQrUiPaletteSet& set = setOf(*host());
        MainFrame& frame = stage().toolkit.frame();
        const PaletteSetState& state = stage().toolkit.paletteSets().of(&set);
        const BarParts parts = partsOfDockedBar(width());
        if (isStrip())
            frame.rollOut(set, true);
        else if (parts.close.contains(point))
            frame.close(set);
        else if (parts.anchor.contains(point))
            frame.anchor(set, !state.place.anchored);
    });
}

void BarMirror::floatUnder(QPoint screenPoint) {
    stage().pump.act([this, screenPoint] {
        CQrUiPaletteSet& set = setOf(*host());
        const int left = screenPoint.x() - width() / 2;
        const int top = screenPoint.y() - PaletteSetWidget::kGripHeight / 2;
        stage().toolkit.frame().floatAt(
            set, {left, top, left + width(), top + std::min(height(), kFloatingHeight)});
    });
}

}  // namespace workbench::desktop
