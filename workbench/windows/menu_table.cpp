#include "workbench/windows/menu_table.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace workbench {

namespace {

/// Greyed or disabled, as the window system numbers them.
constexpr UINT kDisabledFlags = 0x0003;

}  // namespace

HMENU MenuTable::create() {
    return m_menus.add(std::make_unique<Menu>());
}

bool MenuTable::destroy(HMENU menu) {
    const std::unique_ptr<Menu> gone = m_menus.take(menu);
    if (gone == nullptr)
        return false;
    for (const Item& item : gone->items)
        destroy(item.popup);
    return true;
}

bool MenuTable::append(HMENU menu, UINT flags, std::uintptr_t item, std::wstring text) {
    Menu* const found = m_menus.find(menu);
    if (found == nullptr)
        return false;
    if ((flags & MF_POPUP) == 0) {
        found->items.push_back({flags, static_cast<UINT>(item), nullptr, std::move(text)});
        return true;
    }
    const auto popup = reinterpret_cast<HMENU>(item);
    if (!isMenu(popup) || hangsIn(menu, popup))
        return false;
    found->items.push_back({flags, 0, popup, std::move(text)});
    return true;
}

bool MenuTable::remove(HMENU menu, int position) {
    if (itemAt(menu, position) == nullptr)
        return false;
    std::vector<Item>& items = m_menus.find(menu)->items;
    items.erase(items.begin() + position);
    return true;
}

int MenuTable::enable(HMENU menu, UINT item, UINT flags) {
    const bool isPlace = (flags & MF_BYPOSITION) != 0;
    const int position = static_cast<int>(item);
    Item* found = nullptr;
    if (!isPlace)
        found = itemOf(menu, item);
    else if (itemAt(menu, position) != nullptr)
        found = &m_menus.find(menu)->items[item];
    if (found == nullptr)
        return -1;
    const UINT before = found->flags;
    found->flags = (before & ~kDisabledFlags) | (flags & kDisabledFlags);
    return static_cast<int>(before);
}

/// The line of a command in a menu or its popups; null for none.
MenuTable::Item* MenuTable::itemOf(HMENU menu, UINT command) const {
    Menu* const found = m_menus.find(menu);
    if (found == nullptr)
        return nullptr;
    for (Item& item : found->items) {
        const bool isLine = item.popup == nullptr && (item.flags & MF_SEPARATOR) == 0;
        Item* const line = isLine && item.command == command ? &item : itemOf(item.popup, command);
        if (line != nullptr)
            return line;
    }
    return nullptr;
}

int MenuTable::lineCount(HMENU menu) const {
    const Menu* const found = m_menus.find(menu);
    return found == nullptr ? 0 : static_cast<int>(found->items.size());
}

int MenuTable::stateAt(HMENU menu, int position) const {
    const Item* const item = itemAt(menu, position);
    return item == nullptr ? -1 : static_cast<int>(item->flags);
}

std::vector<MenuLine> MenuTable::read(HMENU menu) const {
    std::vector<MenuLine> lines;
    const Menu* const found = m_menus.find(menu);
    if (found == nullptr)
        return lines;
    for (const Item& item : found->items) {
        MenuLine line;
        line.separator = (item.flags & MF_SEPARATOR) != 0;
        line.checked = (item.flags & MF_CHECKED) != 0;
        line.disabled = (item.flags & kDisabledFlags) != 0;
        line.command = line.separator ? 0 : item.command;
        line.text = item.text;
        line.children = read(item.popup);
        lines.push_back(std::move(line));
    }
    return lines;
}

const MenuTable::Item* MenuTable::itemAt(HMENU menu, int position) const {
    if (position < 0 || position >= lineCount(menu))
        return nullptr;
    return &m_menus.find(menu)->items[static_cast<std::size_t>(position)];
}

bool MenuTable::hangsIn(HMENU menu, HMENU root) const {
    if (menu == root)
        return true;
    const Menu* const found = m_menus.find(root);
    return found != nullptr &&
           std::any_of(found->items.begin(), found->items.end(), [this, menu](const Item& item) {
               return item.popup != nullptr && hangsIn(menu, item.popup);
           });
}

}  // namespace workbench
