#pragma once

#include "workbench/windows/handle_table.h"
#include "workbench/windows/window.h"

#include <hostapi/window.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

/// The windows by handle, as the tree that parents and children make, and what can be asked of it.
class WindowTree {
public:
    WindowTree() = default;
    WindowTree(const WindowTree&) = delete;
    WindowTree& operator=(const WindowTree&) = delete;

    /// The window of a handle; null for a stale one.
    Window* find(HWND window) { return m_windows.find(window); }
    const Window* find(HWND window) const { return m_windows.find(window); }
    /// The widget of an object's window as a type; null without a window or for another type.
    template <class Type>
    Type* widgetOf(const CWnd* object) {
        Window* window = object == nullptr ? nullptr : find(object->m_hWnd);
        return window == nullptr ? nullptr : dynamic_cast<Type*>(window->widget.get());
    }
    /// The top windows, from the bottom of the pile to its top.
    const std::vector<HWND>& topWindows() const { return m_topWindows; }
    /// How many windows live.
    std::size_t count() const { return m_windows.count(); }

    /// The window and all its parents have the visible style.
    bool isOnScreen(HWND window) const;
    /// The window and all its parents are enabled.
    bool takesInput(HWND window) const;
    CRect screenRect(HWND window) const;
    /// The client area, origin (0, 0).
    CRect clientRect(HWND window) const;
    /// The top window that a window is or stands in; null for a stale handle.
    HWND topOf(HWND window) const;
    /// The popup that a window is or stands in; null for none.
    HWND popupAbove(HWND window) const;
    /// Whether a window is `root` or stands below it.
    bool isWithin(HWND window, HWND root) const;
    /// The first window with this name at or below `root` (null: anywhere), `skip` left out before.
    HWND findByName(std::string_view name, int skip = 0, HWND root = nullptr) const;
    /// Name of the nearest named window at or above, empty for none.
    std::string ownerName(HWND window) const;
    /// The nearest named window at or above, null for none.
    HWND owner(HWND window) const;
    /// All descendants, depth first, each window's children from the bottom of the pile to its top.
    std::vector<HWND> descendants(HWND window) const;

    /// Puts a window into the pile of its siblings, right below another of them, or on top of all for
    /// null. False if it stands there already, and for what are no siblings.
    bool putBelow(HWND window, HWND sibling);

private:
    friend class WindowLife;  // nobody else makes and ends windows

    HWND add(std::unique_ptr<Window> window);
    std::unique_ptr<Window> take(HWND window);
    std::vector<HWND>& siblingsOf(const Window& window);

    HandleTable<HWND, Window> m_windows;
    std::vector<HWND> m_topWindows;
};

}  // namespace workbench
