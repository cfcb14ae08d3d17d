#pragma once

#include <string>
#include <vector>

namespace workbench {

class Editor;
class MenuHost;

/// What the toolbar controls show and change.
struct ToolbarScope {
    Editor& editor;
    MenuHost& menu;
};

/// One of the host's toolbar controls: a list to choose from, or a button.
struct ToolbarControl {
    unsigned id;
    /// The texts of the list, of the present drawing; null for a button.
    std::vector<std::wstring> (*entries)(const ToolbarScope& scope);
    /// The entry in force; -1 for none. Null where the list keeps its own choice.
    int (*current)(const ToolbarScope& scope, const std::vector<std::wstring>& entries);
    /// Takes a choice, or a click on the button (an empty text), into effect; null where the choice
    /// stays in the list.
    void (*apply)(const ToolbarScope& scope, const std::wstring& text);
};

/// The control of an ID; null for an unknown one.
const ToolbarControl* findToolbarControl(unsigned id);

}  // namespace workbench
