#include "workbench/windows/window_life.h"

#include "workbench/base/turn.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace workbench {

namespace {

CRect withoutNegativeSize(CRect rect) {
    rect.right = std::max(rect.left, rect.right);
    rect.bottom = std::max(rect.top, rect.bottom);
    return rect;
}

/// Stands in for an object that ends while its window is on its way out.
CWnd& nobody() {
    static CWnd s_nobody;
    return s_nobody;
}

}  // namespace

bool WindowLife::create(CWnd& object, WindowCreation creation) {
    const WindowTree& tree = m_parts.tree;
    if (tree.find(object.m_hWnd) != nullptr || !canStandIn(creation.parent) ||
        !canStandIn(creation.popupOf))
        return false;
    creation.rect = withoutNegativeSize(creation.rect);
    const CREATESTRUCT record{creation.rect.left,     creation.rect.top, creation.rect.Width(),
                              creation.rect.Height(), creation.style,    creation.parent};
    const HWND window = add(object, std::move(creation));
    if (m_parts.messages.send(window, WM_CREATE, 0, reinterpret_cast<LPARAM>(&record)) == -1) {
        destroy(window);
        return false;
    }
    m_parts.changes.tell(window);
    return tree.find(window) != nullptr;
}

/// Whether a window, unless it is null, can have another one in it or over it.
bool WindowLife::canStandIn(HWND window) const {
    const Window* const found = m_parts.tree.find(window);
    return window == nullptr || (found != nullptr && !found->dying);
}

HWND WindowLife::add(CWnd& object, WindowCreation&& creation) {
    auto window = std::make_unique<Window>();
    window->object = &object;
    window->className = creation.className;
    window->name = std::move(creation.name);
    window->parent = creation.parent;
    window->popupOf = creation.popupOf;
    if (creation.popupOf != nullptr)
        window->opener = m_parts.messages.handling();
    window->rect = creation.rect;
    window->style = creation.style;
    window->id = creation.id;
    window->text = std::move(creation.text);
    window->widget = std::move(creation.widget);
    Widget* const widget = window->widget.get();
    object.m_hWnd = m_parts.tree.add(std::move(window));
    if (widget != nullptr)
        widget->stand(object.m_hWnd);
    return object.m_hWnd;
}

bool WindowLife::destroy(HWND window) {
    const Window* const found = m_parts.tree.find(window);
    if (found == nullptr || found->dying)
        return false;
    destroyPopupsOf(window);
    if (m_parts.tree.find(window) == nullptr)
        return true;
    m_parts.state.show(window, false);
    sendDestroy(window);
    remove(window);
    return true;
}

void WindowLife::destroyPopupsOf(HWND window) {
    const std::vector<HWND> tops = m_parts.tree.topWindows();
    for (const HWND top : tops) {
        const Window* const popup = m_parts.tree.find(top);
        if (popup != nullptr && m_parts.tree.isWithin(popup->popupOf, window))
            destroy(top);
    }
}

void WindowLife::sendDestroy(HWND window) {
    Window* const found = m_parts.tree.find(window);
    if (found == nullptr || found->dying)
        return;
    found->dying = true;
    m_parts.messages.send(window, WM_DESTROY, 0, 0);
    const Window* const still = m_parts.tree.find(window);
    if (still == nullptr)
        return;
    const std::vector<HWND> children = still->children;
    for (const HWND child : children)
        sendDestroy(child);
}

void WindowLife::remove(HWND window) {
    const Window* const found = m_parts.tree.find(window);
    if (found == nullptr)
        return;
    const std::vector<HWND> children = found->children;
    for (const HWND child : children)
        remove(child);
    std::unique_ptr<Window> gone = m_parts.tree.take(window);
    m_parts.focus.windowEnded(window);
    m_parts.timers.windowEnded(window);
    m_parts.messages.windowEnded();
    gone->object->m_hWnd = nullptr;
    // A handler of the widget may be running.
    Turn::keep(std::move(gone));
    m_parts.changes.tell(window);
}

void WindowLife::objectEnds(CWnd& object) {
    destroy(object.m_hWnd);
    if (Window* const onItsWayOut = m_parts.tree.find(object.m_hWnd)) {
        onItsWayOut->object = &nobody();
        Turn::keep(std::move(onItsWayOut->widget));
    }
    m_parts.messages.objectEnds(object);
}

void WindowLife::abandonAll() {
    m_parts.changes.setObserver(nullptr);
    const std::vector<HWND>& tops = m_parts.tree.topWindows();
    while (!tops.empty())
        remove(tops.back());
}

}  // namespace workbench
