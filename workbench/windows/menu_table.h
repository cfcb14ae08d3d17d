#pragma once

#include "workbench/windows/handle_table.h"

#include <hostapi/window.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace workbench {

/// One line of a menu as a user reads it.
struct MenuLine {
    std::wstring text;
    UINT command = 0;  ///< 0 for separators and popups
    bool checked = false;
    bool separator = false;
    bool disabled = false;
    std::vector<MenuLine> children;  ///< the lines of a popup
};

/// The living menus, by handle. A popup belongs to its own handle until the menu that it hangs in
/// is destroyed, which takes it along.
class MenuTable {
public:
    /// A new, empty menu.
    HMENU create();
    /// Ends a menu and the popups that hang in it. False for a stale handle.
    bool destroy(HMENU menu);
    bool isMenu(HMENU menu) const { return m_menus.find(menu) != nullptr; }
    /// Appends a line; `item` is its command, or for `MF_POPUP` the popup's handle. False for a
    /// stale menu and for a popup that is stale or in which the menu itself hangs.
    bool append(HMENU menu, UINT flags, std::uintptr_t item, std::wstring text);
    /// Enables or grays (`MF_GRAYED`) the line of a command in the menu or its popups, or with
    /// `MF_BYPOSITION` the one at a position. Returns the bits that it had, -1 if there is none.
    int enable(HMENU menu, UINT item, UINT flags);
    /// Removes the line at a position; a popup stays alive. False if there is none.
    bool remove(HMENU menu, int position);
    /// Number of lines, 0 for a stale handle.
    int lineCount(HMENU menu) const;
    /// The `MF_...` bits of a line, -1 if there is none.
    int stateAt(HMENU menu, int position) const;
    /// The whole menu as lines; empty for a stale handle.
    std::vector<MenuLine> read(HMENU menu) const;
    /// How many menus live.
    std::size_t liveCount() const { return m_menus.count(); }

private:
    struct Item {
        UINT flags;
        UINT command;
        HMENU popup;  // not null for MF_POPUP only; may have gone stale
        std::wstring text;
    };
    struct Menu {
        std::vector<Item> items;
    };

    const Item* itemAt(HMENU menu, int position) const;
    Item* itemOf(HMENU menu, UINT command) const;
    bool hangsIn(HMENU menu, HMENU root) const;

    HandleTable<HMENU, Menu> m_menus;
};

}  // namespace workbench
