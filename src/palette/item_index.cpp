#include "palette/item_index.h"

#include <algorithm>

void VxDaItemIndex::add(const VxString& id, CQrUiToolPanelItem* item) {
    m_items[id].push_back(item);
}

void VxDaItemIndex::remove(const VxString& id, const CQrUiToolPanelItem* item) {
    const auto found = m_items.find(id);
    if (found == m_items.end())
        return;
    VxDaToolPanelItems& items = found->second;
    items.erase(std::remove(items.begin(), items.end(), item), items.end());
}

const VxDaToolPanelItems* VxDaItemIndex::find(std::wstring_view id) const {
    const auto found = m_items.find(id);
    return found == m_items.end() ? nullptr : &found->second;
}
