#include "workbench/desktop/mirror/window_mirror.h"

#include "workbench/desktop/look/shapes.h"
#include "workbench/desktop/mirror/balloon_bubbles.h"
#include "workbench/desktop/mirror/bar_mirror.h"
#include "workbench/desktop/mirror/bar_parts.h"
#include "workbench/desktop/mirror/floating_mirror.h"
#include "workbench/desktop/mirror/list_overlay.h"
#include "workbench/desktop/mirror/panel_set_mirror.h"
#include "workbench/desktop/mirror/popup_mirror.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/palette_set_widget.h"
#include "workbench/toolkit/panel_set_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <QVBoxLayout>
#include <utility>

namespace workbench::desktop {

WindowMirror::WindowMirror(Stage& stage, QWidget& home)
    : m_stage(stage),
      m_home(home),
      m_lists(std::make_unique<ListOverlay>(stage)),
      m_balloons(std::make_unique<BalloonBubbles>(stage)) {
    m_soon.setSingleShot(true);
    QObject::connect(&m_soon, &QTimer::timeout, [this] { sync(); });
    m_stage.windows.changes().setObserver([this](HWND window) { note(window); });
    m_stage.holdFloating = [this](HWND frame, QPoint point) { holdFloating(frame, point); };
    for (const HWND top : m_stage.windows.topWindows())
        showTree(top);
}

WindowMirror::~WindowMirror() {
    m_stage.windows.changes().setObserver(nullptr);
    m_stage.holdFloating = nullptr;
    for (const QPointer<MirrorWidget>& mirror : std::as_const(m_mirrors))
        delete mirror.data();
}

MirrorWidget* WindowMirror::widgetOf(HWND window) const {
    return m_mirrors.value(window).data();
}

void WindowMirror::fill(HWND window, QWidget& content) {
    MirrorWidget* const mirror = widgetOf(window);
    if (mirror == nullptr)
        return;
    auto* layout = new QVBoxLayout(mirror);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(&content);
}

void WindowMirror::note(HWND window) {
    if (!m_isChanged.contains(window)) {
        m_isChanged.insert(window);
        m_changed.push_back(window);
    }
    if (!m_soon.isActive())
        m_soon.start(0);
}

void WindowMirror::sync() {
    m_soon.stop();
    // Asking a window for its background may change others.
    while (!m_changed.empty()) {
        m_isChanged.clear();
        const std::vector<HWND> changed = std::exchange(m_changed, {});
        for (const HWND window : changed)
            update(window);
        for (const HWND window : changed) {
            m_lists->update(window, widgetOf(window));
            m_balloons->update(window, widgetOf(m_stage.toolkit.balloons().targetOf(window)));
        }
    }
    followKeyboard();
    m_balloons->follow();
    std::erase_if(m_panelSets, [](const auto& each) { return each == nullptr; });
    for (const QPointer<PanelSetMirror>& each : m_panelSets)
        each->follow();
}

void WindowMirror::redrawAll() {
    for (const QPointer<MirrorWidget>& mirror : std::as_const(m_mirrors)) {
        if (mirror == nullptr)
            continue;
        mirror->forgetBackground();
        mirror->update();
    }
    m_balloons->restyle();
    m_lists->restyle();
}

void WindowMirror::update(HWND window) {
    MirrorWidget* const mirror = widgetOf(window);
    const Window* const shown = m_stage.windows.find(window);
    if (shown == nullptr) {
        m_mirrors.remove(window);
        if (mirror != nullptr) {
            mirror->hide();
            mirror->deleteLater();
        }
        return;
    }
    if (!m_stage.windows.isOnScreen(window)) {
        if (mirror != nullptr)
            mirror->hide();
        return;
    }
    if (shown->parent != nullptr) {
        const MirrorWidget* const parent = widgetOf(shown->parent);
        if (parent == nullptr || parent->isHidden())
            update(shown->parent);
    }
    showTree(window);
}

/// Brings a window's widget up to date, with all below it unless that was on show already.
MirrorWidget* WindowMirror::showTree(HWND window) {
    const Window* const shown = m_stage.windows.find(window);
    if (shown == nullptr || !shown->hasVisibleStyle())
        return nullptr;
    MirrorWidget* mirror = widgetOf(window);
    bool appears = mirror == nullptr || mirror->isHidden();
    if (mirror == nullptr)
        mirror = make(window);
    QWidget* const parent = parentFor(window);
    if (mirror->parentWidget() != parent && !mirror->isWindow()) {
        // That hides it.
        mirror->setParent(parent);
        appears = true;
    }
    mirror->refresh();
    if (appears) {
        const std::vector<HWND> children = shown->children;
        for (const HWND child : children)
            showTree(child);
        mirror->show();
    }
    return mirror;
}

/// A popup stands in the window in which its opener does, over all else.
QWidget* WindowMirror::parentFor(HWND window) const {
    const Window* const shown = m_stage.windows.find(window);
    const MirrorWidget* const opener = widgetOf(shown->opener);
    if (shown->popupOf != nullptr)
        return opener == nullptr ? m_home.window() : opener->window();
    return shown->parent == nullptr ? &m_home : widgetOf(shown->parent);
}

MirrorWidget* WindowMirror::make(HWND window) {
    const Window& shown = *m_stage.windows.find(window);
    QWidget* const parent = parentFor(window);
    MirrorWidget* mirror = nullptr;
    if (isFloatingFrame(m_stage.toolkit.frame(), shown))
        mirror = new FloatingMirror(m_stage, window, parent);
    else if (dynamic_cast<PaletteSetWidget*>(shown.widget.get()) != nullptr)
        mirror = new BarMirror(m_stage, window, parent);
    else if (dynamic_cast<PanelSetWidget*>(shown.widget.get()) != nullptr)
        mirror = m_panelSets.emplace_back(new PanelSetMirror(m_stage, window, parent)).data();
    else if (shown.popupOf != nullptr)
        mirror = new PopupMirror(m_stage, window, parent, widgetOf(shown.opener));
    else
        mirror = new MirrorWidget(m_stage, window, parent);
    m_mirrors.insert(window, mirror);
    return mirror;
}

/// The host's keyboard moves Qt's, not the other way round; a pane of the desktop keeps it until the
/// host moves it again.
void WindowMirror::followKeyboard() {
    const HWND now = m_stage.windows.focus();
    if (now == std::exchange(m_keyboard, now)) {
        if (MirrorWidget* const mirror = widgetOf(now))
            mirror->announceItem();
        return;
    }
    MirrorWidget* const mirror = widgetOf(now);
    if (mirror == nullptr || (paletteSetAbove(m_stage.windows, now) == nullptr &&
                              m_stage.windows.popupAbove(now) == nullptr)) {
        if (m_toDrawing)
            m_toDrawing();
        return;
    }
    scrollIntoView(now);
    if (!mirror->window()->isActiveWindow())
        mirror->window()->activateWindow();
    mirror->setFocus();
}

void WindowMirror::holdFloating(HWND frame, QPoint screenPoint) {
    sync();
    if (auto* const floating = dynamic_cast<FloatingMirror*>(widgetOf(frame)))
        floating->hold(screenPoint);
}

void WindowMirror::scrollIntoView(HWND window) {
    Window* set = m_stage.windows.find(window);
    while (set != nullptr && dynamic_cast<PanelSetWidget*>(set->widget.get()) == nullptr)
        set = m_stage.windows.find(set->parent);
    if (set == nullptr)
        return;
    const int top = m_stage.windows.screenRect(window).top;
    const int bottom = m_stage.windows.screenRect(window).bottom;
    const CRect room = m_stage.windows.screenRect(set->parent);
    const auto& panelSet = *static_cast<CQrUiPanelSet*>(set->object);
    const int scroll = m_stage.toolkit.panelSets().of(&panelSet).scroll;
    auto& widget = static_cast<PanelSetWidget&>(*set->widget);
    if (top < room.top)
        widget.scrollTo(*set, scroll - (room.top - top));
    else if (bottom > room.bottom)
        widget.scrollTo(*set, scroll + (bottom - room.bottom));
}

}  // namespace workbench::desktop
