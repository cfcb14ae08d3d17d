#pragma once

#include "workbench/base/value.h"
#include "workbench/core/journal.h"
#include "workbench/windows/window_tree.h"

#include <hostapi/window.h>

#include <functional>
#include <string_view>
#include <utility>

namespace workbench {

/// Where changes of what a user would see are told: in the journal (kind "control") for windows that
/// stand inside a named one, and to the observer.
class WindowChanges {
public:
    WindowChanges(const WindowTree& tree, Journal& journal) : m_tree(tree), m_journal(journal) {}
    WindowChanges(const WindowChanges&) = delete;
    WindowChanges& operator=(const WindowChanges&) = delete;

    /// Notes a visible change of a window in the journal under the name of the nearest named window
    /// and tells the observer; equal values are left out. In a part of a named window "text" and
    /// "position" become the part's name ("edit", "slider"), other fields stand behind it
    /// ("edit.enabled").
    void note(HWND window, std::string_view field, Value before, Value after);
    /// The same for the text, which is left in the host's own letters while nothing is recorded.
    void noteText(HWND window, std::wstring_view before, std::wstring_view after);
    /// Asks for a repaint of a window; a stale handle is ignored.
    void invalidate(HWND window);
    /// Tells the observer that a window changed, was made or went; null is ignored.
    void tell(HWND window) const;

    /// Is told of each window that changed, was made or went. Null ends it.
    using Observer = std::function<void(HWND)>;
    void setObserver(Observer observer) { m_observer = std::move(observer); }

private:
    const WindowTree& m_tree;
    Journal& m_journal;
    Observer m_observer;
};

}  // namespace workbench
