#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace workbench {

class Editor;
class MenuHost;

/// What the toolbar controls show and change.
struct ToolbarScope {
    Editor& editor;
    MenuHost& menu;
};

using ToolbarEntries = std::vector<std::wstring>;

/// One of the host's toolbar controls: a list to choose from, or a button.
struct ToolbarControl {
    unsigned id;
    /// The texts of the list, of the present drawing; null for a button.
    ToolbarEntries (*entries)(const ToolbarScope& scope);
    /// The entry in force, empty for none; null for a button, and for a list that is always empty.
    std::wstring (*current)(const ToolbarScope& scope);
    /// Takes a choice, or a click on the button (an empty text), into effect, as far as the drawing
    /// allows it; null for a list that is always empty.
    void (*apply)(const ToolbarScope& scope, const std::wstring& text);
};

/// The control of an ID; null for an unknown one.
const ToolbarControl* findToolbarControl(unsigned id);

/// The index of an entry, without regard to case; -1 for none.
int indexOfEntry(const ToolbarEntries& entries, std::wstring_view text);

}  // namespace workbench
