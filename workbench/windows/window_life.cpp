#include "workbench/base/turn.h"
#include "workbench/windows/window_system.h"

#include <algorithm>
#include <utility>

namespace workbench {

namespace {

/// Room for handlers within handlers, so that sending doesn't allocate.
constexpr std::size_t kUsualDispatchDepth = 64;

CRect withoutNegativeSize(CRect rect) {
    rect.right = std::max(rect.left, rect.right);
    rect.bottom = std::max(rect.top, rect.bottom);
    return rect;
}

}  // namespace

WindowSystem::WindowSystem(Clock& clock, Journal& journal) : m_clock(clock), m_journal(journal) {
    m_dispatches.reserve(kUsualDispatchDepth);
}

WindowSystem::~WindowSystem() {
    abandonAll();
}

void WindowSystem::abandonAll() {
    m_observer = nullptr;
    while (!m_topWindows.empty())
        remove(m_topWindows.back());
}

bool WindowSystem::create(CWnd& object, WindowCreation creation) {
    if (find(object.m_hWnd) != nullptr)
        return false;
    if (creation.parent != nullptr) {
        const Window* const parent = find(creation.parent);
        if (parent == nullptr || parent->dying)
            return false;
    }
    creation.rect = withoutNegativeSize(creation.rect);
    const CREATESTRUCT record{creation.rect.left,     creation.rect.top, creation.rect.Width(),
                              creation.rect.Height(), creation.style,    creation.parent};
    const HWND window = add(object, std::move(creation));
    if (send(window, WM_CREATE, 0, reinterpret_cast<LPARAM>(&record)) == -1) {
        destroy(window);
        return false;
    }
    tellObserver(window);
    return find(window) != nullptr;
}

HWND WindowSystem::add(CWnd& object, WindowCreation&& creation) {
    auto made = std::make_unique<Window>();
    Window& window = *made;
    window.object = &object;
    window.className = creation.className;
    window.parent = creation.parent;
    window.rect = creation.rect;
    window.style = creation.style;
    window.id = creation.id;
    window.text = std::move(creation.text);
    window.widget = std::move(creation.widget);
    window.handle = m_windows.add(std::move(made));
    Window* const parent = find(window.parent);
    (parent == nullptr ? m_topWindows : parent->children).push_back(window.handle);
    object.m_hWnd = window.handle;
    return window.handle;
}

bool WindowSystem::destroy(HWND window) {
    const Window* const found = find(window);
    if (found == nullptr || found->dying)
        return false;
    show(window, false);
    sendDestroy(window);
    remove(window);
    return true;
}

void WindowSystem::sendDestroy(HWND window) {
    Window* const found = find(window);
    if (found == nullptr || found->dying)
        return;
    found->dying = true;
    send(window, WM_DESTROY, 0, 0);
    const Window* const still = find(window);
    if (still == nullptr)
        return;
    const std::vector<HWND> children = still->children;
    for (const HWND child : children)
        sendDestroy(child);
}

void WindowSystem::remove(HWND window) {
    const Window* const found = find(window);
    if (found == nullptr)
        return;
    const std::vector<HWND> children = found->children;
    for (const HWND child : children)
        remove(child);
    std::unique_ptr<Window> gone = m_windows.take(window);
    if (m_focus == window)
        m_focus = nullptr;
    if (m_reportedFocus == window)
        m_reportedFocus = nullptr;
    Window* const parent = find(gone->parent);
    std::vector<HWND>& siblings = parent == nullptr ? m_topWindows : parent->children;
    siblings.erase(std::find(siblings.begin(), siblings.end(), window));
    gone->object->m_hWnd = nullptr;
    // A handler of the widget may be running.
    Turn::keep(std::move(gone));
    tellObserver(window);
}

}  // namespace workbench
