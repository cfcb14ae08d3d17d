#pragma once

#include "workbench/windows/handle_table.h"

#include <hostapi/window/tree_ctrl.h>

#include <functional>
#include <string>
#include <vector>

namespace workbench {

/// An item of a tree.
struct TreeItem {
    std::wstring text;
    int image = -1;              ///< index in the tree's list of pictures
    int selectedImage = -1;      ///< the same, while it is selected
    HTREEITEM parent = nullptr;  ///< null: it stands at the top
    std::vector<HTREEITEM> children;
    bool isOpen = false;
};

/// The items of a tree by handle. Null stands for what is above the top: it finds no item, but has
/// children.
class TreeItems {
public:
    TreeItem* find(HTREEITEM item) { return m_items.find(item); }
    const TreeItem* find(HTREEITEM item) const { return m_items.find(item); }
    std::size_t count() const { return m_items.count(); }
    /// The children of an item; none for a stale one.
    const std::vector<HTREEITEM>& childrenOf(HTREEITEM parent) const;

    /// Inserts an item below its parent, behind a sibling or, for null, behind all. Null if there is
    /// no such parent or sibling.
    HTREEITEM insert(TreeItem item, HTREEITEM behind);
    /// Ends an item with all below it. False for a stale handle.
    bool remove(HTREEITEM item);
    void clear();
    /// Sorts the children of an item. False for a stale handle.
    using IsBefore = std::function<bool(const TreeItem& left, const TreeItem& right)>;
    bool sortChildren(HTREEITEM parent, const IsBefore& isBefore);
    /// Opens all items above one.
    void openAbove(HTREEITEM item);

    /// Whether an item is another one or stands below it.
    bool isWithin(HTREEITEM item, HTREEITEM root) const;
    /// The next child of the same parent; null for none.
    HTREEITEM nextSibling(HTREEITEM item) const;
    /// How many items stand above one.
    int levelOf(HTREEITEM item) const;
    /// The items that show, from top to bottom: those whose parents are all open.
    std::vector<HTREEITEM> rows() const;

private:
    std::vector<HTREEITEM>* childList(HTREEITEM parent);
    void end(HTREEITEM item);
    void appendRows(HTREEITEM parent, std::vector<HTREEITEM>& rows) const;

    HandleTable<HTREEITEM, TreeItem> m_items;
    std::vector<HTREEITEM> m_top;
};

}  // namespace workbench
