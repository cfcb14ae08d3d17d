#include "workbench/desktop/mirror/mirror_widget.h"

#include "workbench/desktop/look/shapes.h"
#include "workbench/desktop/look/text.h"
#include "workbench/desktop/mirror/item_widget.h"
#include "workbench/desktop/mirror/key_input.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/desktop/mirror/window_names.h"
#include "workbench/desktop/mirror/window_painter.h"
#include "workbench/toolkit/combo_widget.h"
#include "workbench/toolkit/input_messages.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/slider_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/background_painter.h"
#include "workbench/windows/window_system.h"

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>

namespace workbench::desktop {

namespace {

WPARAM heldWith(const QMouseEvent& event) {
    WPARAM held = 0;
    if (event.buttons().testFlag(Qt::LeftButton))
        held |= kLeftButtonHeld;
    if (event.modifiers().testFlag(Qt::ControlModifier))
        held |= kControlHeld;
    return held;
}

/// White is what a dashboard fills the room of fields with: it becomes the colour that fields have.
QColor inLook(const Look& look, COLORREF colour) {
    constexpr COLORREF kWhite = 0xffffff;
    if (colour == kWhite)
        return look.field;
    return toQt(colour);
}

bool isOverAMirror() {
    const QWidget* const over = QApplication::widgetAt(QCursor::pos());
    return dynamic_cast<const MirrorWidget*>(over) != nullptr;
}

}  // namespace

MirrorWidget::MirrorWidget(Stage& stage, HWND window, QWidget* parent)
    : QWidget(parent),
      m_stage(stage),
      m_handle(window) {
    setMouseTracking(true);
    // The host alone moves the keyboard.
    setFocusPolicy(Qt::NoFocus);
}

Window* MirrorWidget::host() const {
    return m_stage.windows.find(m_handle);
}

void MirrorWidget::refresh() {
    const Window* const window = host();
    if (window == nullptr)
        return;
    setGeometry(placeOf(*window));
    const WindowNames names = namesOf(m_stage.toolkit, *window);
    setAccessibleName(names.name);
    setAccessibleDescription(names.description);
    refreshItems(*window);
    update();
}

QRect MirrorWidget::placeOf(const Window& window) const {
    return toQt(window.rect);
}

void MirrorWidget::refreshItems(const Window& window) {
    const auto* panel = dynamic_cast<CQrUiToolPanel*>(window.object);
    if (panel == nullptr)
        return;
    const auto count = static_cast<std::size_t>(panel->GetToolPanelItemCount());
    while (m_items.size() > count) {
        delete m_items.back();
        m_items.pop_back();
    }
    while (m_items.size() < count)
        m_items.push_back(
            new ItemWidget(m_stage, m_handle, static_cast<int>(m_items.size()), this));
    for (ItemWidget* item : m_items)
        item->refresh();
}

ItemWidget* MirrorWidget::itemAt(QPoint point) const {
    for (ItemWidget* item : m_items) {
        if (item->isVisible() && item->geometry().contains(point))
            return item;
    }
    return nullptr;
}

ItemWidget* MirrorWidget::itemWithKeyboard() const {
    // An open menu has it meanwhile.
    if (!hasFocus() || QApplication::activePopupWidget() != nullptr)
        return nullptr;
    const auto marked = std::find_if(m_items.begin(), m_items.end(),
                                     [](const ItemWidget* item) { return item->isMarked(); });
    return marked == m_items.end() ? nullptr : *marked;
}

void MirrorWidget::announceItem() {
    ItemWidget* const item = itemWithKeyboard();
    if (item == nullptr || item == m_announced)
        return;
    m_announced = item;
    QAccessibleEvent event(item, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

std::optional<QColor> MirrorWidget::background() {
    if (!m_backgroundAsked) {
        m_backgroundAsked = true;
        const std::optional<COLORREF> colour = paintBackground(m_stage.windows, m_handle);
        m_background.reset();
        if (colour)
            m_background = inLook(*m_stage.look, *colour);
    }
    return m_background;
}

void MirrorWidget::paintEvent(QPaintEvent* /*event*/) {
    Window* const window = host();
    if (window == nullptr)
        return;
    QPainter painter(this);
    if (const std::optional<QColor> colour = background())
        painter.fillRect(rect(), *colour);
    paintWindow(painter, m_stage, *window);
}

void MirrorWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    m_stage.pressedAt = event->globalPosition().toPoint();
    const CPoint point = toHost(event->position().toPoint());
    m_stage.pump.act([this, point] { m_stage.toolkit.mouse().press(m_handle, point); });
}

void MirrorWidget::mouseMoveEvent(QMouseEvent* event) {
    hoverItem(event->position().toPoint());
    const CPoint point = toHost(event->position().toPoint());
    const WPARAM held = heldWith(*event);
    m_stage.pump.act([this, point, held] { m_stage.toolkit.mouse().move(m_handle, point, held); });
}

void MirrorWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    const CPoint point = toHost(event->position().toPoint());
    m_stage.pump.act([this, point] { m_stage.toolkit.mouse().release(m_handle, point); });
}

void MirrorWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    // The release that follows comes by itself.
    const CPoint point = toHost(event->position().toPoint());
    m_stage.pump.act([this, point] {
        m_stage.windows.input(m_handle, kLeftButtonDoubleClick, kLeftButtonHeld, packPoint(point));
    });
}

void MirrorWidget::contextMenuEvent(QContextMenuEvent* event) {
    m_stage.pressedAt = event->globalPos();
    const CPoint point = toHost(event->pos());
    m_stage.pump.act([this, point] { m_stage.toolkit.mouse().contextMenu(m_handle, point); });
}

/// The wheel turns a slider or a list that has the keyboard; over everything else it scrolls the panels, so that no
/// value changes by scrolling past it.
void MirrorWidget::wheelEvent(QWheelEvent* event) {
    m_wheelRest += event->angleDelta().y();
    const int notches = m_wheelRest / kWheelStep;
    m_wheelRest -= notches * kWheelStep;
    event->accept();
    const Window* const window = host();
    if (notches == 0 || window == nullptr)
        return;
    const bool hasKeyboard = m_stage.windows.focus() == m_handle;
    const bool isTurned =
        hasKeyboard && (dynamic_cast<SliderWidget*>(window->widget.get()) != nullptr ||
                        dynamic_cast<ComboWidget*>(window->widget.get()) != nullptr);
    const CQrUiPanel* const panel = panelAbove(m_stage.windows, m_handle);
    const HWND turned = isTurned || panel == nullptr ? m_handle : panel->m_hWnd;
    const CPoint point = toHost(event->position().toPoint());
    m_stage.pump.act(
        [this, turned, point, notches] { m_stage.toolkit.mouse().wheel(turned, point, notches); });
}

void MirrorWidget::leaveEvent(QEvent* event) {
    hoverItem({-1, -1});
    QWidget::leaveEvent(event);
    // A menu or a box of the host's takes the mouse only for a while.
    const bool isAsking = QApplication::activePopupWidget() != nullptr ||
                          QApplication::activeModalWidget() != nullptr;
    if (isAsking || m_stage.toolkit.mouse().captured() != nullptr || isOverAMirror())
        return;
    m_stage.pump.act([this] { m_stage.toolkit.mouse().leave(); });
}

void MirrorWidget::hoverItem(QPoint point) {
    const ItemWidget* const over = itemAt(point);
    for (ItemWidget* item : m_items)
        item->setHovered(item == over);
}

void MirrorWidget::keyPressEvent(QKeyEvent* event) {
    event->accept();
    if (const ItemWidget* const item = itemWithKeyboard())
        m_stage.pressedAt = item->mapToGlobal(item->rect().bottomLeft());
    pressKey(m_stage, *event);
}

void MirrorWidget::keyReleaseEvent(QKeyEvent* event) {
    event->accept();
    holdModifiers(m_stage, event->modifiers());
}

/// Who gives the keyboard announces the row of tools itself behind this.
void MirrorWidget::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    m_announced = nullptr;
    QMetaObject::invokeMethod(
        this, [this] { announceItem(); }, Qt::QueuedConnection);
}

void MirrorWidget::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    m_announced = nullptr;
}

bool MirrorWidget::focusNextPrevChild(bool /*next*/) {
    return false;  // Tab is the host's affair too
}

bool MirrorWidget::event(QEvent* event) {
    // Keys of edit fields are no shortcuts of the window.
    if (event->type() == QEvent::ShortcutOverride &&
        isOwnKey(m_stage, *static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

}  // namespace workbench::desktop
