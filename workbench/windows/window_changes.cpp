#include "workbench/windows/window_changes.h"

#include "workbench/base/text.h"
#include "workbench/windows/window_parts.h"

#include <string>

namespace workbench {

void WindowChanges::note(HWND window, std::string_view field, Value before, Value after) {
    if (before == after)
        return;
    tell(window);
    if (!m_journal.isRecording())
        return;
    std::string name = m_tree.ownerName(window);
    if (name.empty())
        return;
    std::string shown(field);
    if (const std::string part = partName(m_tree, window); !part.empty())
        shown = field == "text" || field == "position" ? part : part + "." + shown;
    m_journal.add("control", {{"name", std::move(name)},
                              {"field", std::move(shown)},
                              {"old", std::move(before)},
                              {"new", std::move(after)}});
}

void WindowChanges::noteText(HWND window, std::wstring_view before, std::wstring_view after) {
    if (m_journal.isRecording())
        note(window, "text", toUtf8(before), toUtf8(after));
    else if (before != after)
        tell(window);
}

void WindowChanges::invalidate(HWND window) {
    if (m_tree.find(window) != nullptr)
        tell(window);
}

void WindowChanges::tell(HWND window) const {
    if (m_observer && window != nullptr)
        m_observer(window);
}

}  // namespace workbench
