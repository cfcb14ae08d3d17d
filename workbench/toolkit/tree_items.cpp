#include "workbench/toolkit/tree_items.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace workbench {

const std::vector<HTREEITEM>& TreeItems::childrenOf(HTREEITEM parent) const {
    static const std::vector<HTREEITEM> kNone;
    const TreeItem* const found = find(parent);
    if (found != nullptr)
        return found->children;
    return parent == nullptr ? m_top : kNone;
}

std::vector<HTREEITEM>* TreeItems::childList(HTREEITEM parent) {
    TreeItem* const found = find(parent);
    if (found != nullptr)
        return &found->children;
    return parent == nullptr ? &m_top : nullptr;
}

HTREEITEM TreeItems::insert(TreeItem item, HTREEITEM behind) {
    const HTREEITEM parent = item.parent;
    const std::vector<HTREEITEM>& siblings = childrenOf(parent);
    auto place = siblings.end();
    if (behind != nullptr) {
        const auto sibling = std::find(siblings.begin(), siblings.end(), behind);
        if (sibling == siblings.end())
            return nullptr;
        place = sibling + 1;
    }
    if (parent != nullptr && find(parent) == nullptr)
        return nullptr;
    const auto index = place - siblings.begin();
    const HTREEITEM made = m_items.add(std::make_unique<TreeItem>(std::move(item)));
    std::vector<HTREEITEM>& list = *childList(parent);
    list.insert(list.begin() + index, made);
    return made;
}

bool TreeItems::remove(HTREEITEM item) {
    const TreeItem* const found = find(item);
    if (found == nullptr)
        return false;
    const HTREEITEM parent = found->parent;
    end(item);
    std::erase(*childList(parent), item);
    if (TreeItem* const above = find(parent); above != nullptr && above->children.empty())
        above->isOpen = false;
    return true;
}

void TreeItems::end(HTREEITEM item) {
    const std::unique_ptr<TreeItem> gone = m_items.take(item);
    for (const HTREEITEM child : gone->children)
        end(child);
}

void TreeItems::clear() {
    for (const HTREEITEM item : std::exchange(m_top, {}))
        end(item);
}

bool TreeItems::sortChildren(HTREEITEM parent, const IsBefore& isBefore) {
    std::vector<HTREEITEM>* const children = childList(parent);
    if (children == nullptr)
        return false;
    std::stable_sort(children->begin(), children->end(),
                     [this, &isBefore](HTREEITEM left, HTREEITEM right) {
                         return isBefore(*find(left), *find(right));
                     });
    return true;
}

void TreeItems::openAbove(HTREEITEM item) {
    const TreeItem* const found = find(item);
    for (TreeItem* above = found == nullptr ? nullptr : find(found->parent); above != nullptr;
         above = find(above->parent))
        above->isOpen = true;
}

bool TreeItems::isWithin(HTREEITEM item, HTREEITEM root) const {
    for (const TreeItem* each = find(item); each != nullptr; each = find(item)) {
        if (item == root)
            return true;
        item = each->parent;
    }
    return false;
}

HTREEITEM TreeItems::nextSibling(HTREEITEM item) const {
    const TreeItem* const found = find(item);
    if (found == nullptr)
        return nullptr;
    const std::vector<HTREEITEM>& siblings = childrenOf(found->parent);
    const auto next = std::find(siblings.begin(), siblings.end(), item) + 1;
    return next == siblings.end() ? nullptr : *next;
}

int TreeItems::levelOf(HTREEITEM item) const {
    int level = -1;
    for (const TreeItem* each = find(item); each != nullptr; each = find(each->parent))
        ++level;
    return level;
}

std::vector<HTREEITEM> TreeItems::rows() const {
    std::vector<HTREEITEM> rows;
    appendRows(nullptr, rows);
    return rows;
}

void TreeItems::appendRows(HTREEITEM parent, std::vector<HTREEITEM>& rows) const {
    for (const HTREEITEM item : childrenOf(parent)) {
        rows.push_back(item);
        if (find(item)->isOpen)
            appendRows(item, rows);
    }
}

}  // namespace workbench
