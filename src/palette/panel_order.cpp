#include "palette/panel_order.h"

#include <cstddef>
#include <utility>

namespace {

/// The indexes of the records that a list names, in its order.
std::vector<std::size_t> indexesInList(const PanelRecords& records, const VxDaPanelList& list) {
    std::vector<std::size_t> indexes;
    std::vector<bool> placed(records.size(), false);
    for (const auto& [id, menuGroup] : list) {
        for (std::size_t i = 0; i < records.size(); ++i) {
            if (placed[i] || records[i]->id != id || records[i]->menuGroup != menuGroup)
                continue;
            indexes.push_back(i);
            placed[i] = true;
            break;
        }
    }
    return indexes;
}

}  // namespace

std::vector<PanelRecord*> recordsInList(const PanelRecords& records, const VxDaPanelList& list) {
    std::vector<PanelRecord*> named;
    for (const std::size_t index : indexesInList(records, list))
        named.push_back(records[index].get());
    return named;
}

void orderByList(PanelRecords& records, const VxDaPanelList& list) {
    PanelRecords ordered;
    ordered.reserve(records.size());
    for (const std::size_t index : indexesInList(records, list))
        ordered.push_back(std::move(records[index]));
    for (std::unique_ptr<PanelRecord>& record : records) {
        if (record != nullptr)
            ordered.push_back(std::move(record));
    }
    records = std::move(ordered);
}
