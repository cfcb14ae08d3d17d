#include "workbench/base/text.h"
#include "workbench/windows/window_parts.h"
#include "workbench/windows/window_system.h"

#include <algorithm>
#include <utility>

namespace workbench {

void WindowSystem::show(HWND window, bool visible) {
    Window* const found = find(window);
    if (found == nullptr || found->hasVisibleStyle() == visible)
        return;
    setVisibleStyle(*found, visible);
    sendPosChanged(window, SWP_NOSIZE | SWP_NOMOVE | (visible ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
}

void WindowSystem::setVisibleStyle(Window& window, bool visible) {
    window.style = visible ? window.style | WS_VISIBLE : window.style & ~WS_VISIBLE;
    noteChange(window.handle, "visible", !visible, visible);
}

void WindowSystem::sendPosChanged(HWND window, UINT flags) {
    const CRect rect = find(window)->rect;
    const WINDOWPOS record{window,       rect.left,     rect.top,
                           rect.Width(), rect.Height(), flags | SWP_NOZORDER | SWP_NOACTIVATE};
    send(window, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&record));
    const Window* const still = find(window);
    if (still != nullptr && !still->hasVisibleStyle())
        dropFocusWithin(window);
}

void WindowSystem::hold(int key, bool down) {
    if (down)
        m_held.insert(key);
    else
        m_held.erase(key);
}

void WindowSystem::enable(HWND window, bool enabled) {
    Window* const found = find(window);
    if (found == nullptr || found->enabled == enabled)
        return;
    found->enabled = enabled;
    noteChange(window, "enabled", !enabled, enabled);
    if (enabled)
        return;
    // Its user has not left a field that is disabled: what stands in it is no entry.
    if (m_focus == window)
        m_reportedFocus = nullptr;
    dropFocusWithin(window);
}

void WindowSystem::setText(HWND window, std::wstring text) {
    Window* const found = find(window);
    if (found == nullptr || found->text == text)
        return;
    std::swap(found->text, text);
    if (m_journal.isRecording())
        noteChange(window, "text", toUtf8(text), toUtf8(found->text));
    else
        tellObserver(window);
}

void WindowSystem::setName(HWND window, std::string name) {
    if (Window* const found = find(window))
        found->name = std::move(name);
}

void WindowSystem::place(HWND window, CRect rect, UINT flags) {
    Window* const found = find(window);
    if (found == nullptr)
        return;
    const CRect old = found->rect;
    CSize size{std::max(0, rect.Width()), std::max(0, rect.Height())};
    CPoint corner{rect.left, rect.top};
    if ((flags & SWP_NOSIZE) != 0)
        size = {old.Width(), old.Height()};
    if ((flags & SWP_NOMOVE) != 0)
        corner = {old.left, old.top};
    found->rect = {corner.x, corner.y, corner.x + size.cx, corner.y + size.cy};

    UINT changes = 0;
    const bool isSized = size != CSize{old.Width(), old.Height()};
    const bool isMoved = corner != CPoint{old.left, old.top};
    changes |= isSized ? 0 : SWP_NOSIZE;
    changes |= isMoved ? 0 : SWP_NOMOVE;
    const UINT shownOrHidden = flags & (found->hasVisibleStyle() ? SWP_HIDEWINDOW : SWP_SHOWWINDOW);
    if (shownOrHidden != 0)
        setVisibleStyle(*found, shownOrHidden == SWP_SHOWWINDOW);
    if (!isSized && !isMoved && shownOrHidden == 0)
        return;
    tellObserver(window);
    if (isSized)
        send(window, WM_SIZE, 0,
             static_cast<LPARAM>(MAKELONG(static_cast<UINT>(size.cx), static_cast<UINT>(size.cy))));
    if (find(window) != nullptr)
        sendPosChanged(window, changes | shownOrHidden);
}

void WindowSystem::noteChange(HWND window, std::string_view field, Value before, Value after) {
    if (before == after)
        return;
    tellObserver(window);
    if (!m_journal.isRecording())
        return;
    std::string name = ownerName(window);
    if (name.empty())
        return;
    std::string shown(field);
    if (const std::string part = partName(*this, window); !part.empty())
        shown = field == "text" || field == "position" ? part : part + "." + shown;
    m_journal.add("control", {{"name", std::move(name)},
                              {"field", std::move(shown)},
                              {"old", std::move(before)},
                              {"new", std::move(after)}});
}

void WindowSystem::invalidate(HWND window) {
    if (find(window) != nullptr)
        tellObserver(window);
}

void WindowSystem::tellObserver(HWND window) {
    if (m_observer && window != nullptr)
        m_observer(window);
}

}  // namespace workbench
