#include "workbench/toolkit/tool_registry.h"

#include <algorithm>

namespace workbench {

void ToolRegistry::add(const GUID& id, Tool tool) {
    entryOf(id).tool = std::move(tool);
}

const ToolRegistry::Tool* ToolRegistry::find(const GUID& id) const {
    const Entry* const entry = findEntry(id);
    return entry == nullptr || !entry->tool ? nullptr : &*entry->tool;
}

void ToolRegistry::rememberPlace(const GUID& id, const BarPlace& place) {
    entryOf(id).place = place;
}

std::optional<BarPlace> ToolRegistry::placeOf(const GUID& id) const {
    const Entry* const entry = findEntry(id);
    return entry == nullptr ? std::nullopt : entry->place;
}

void ToolRegistry::forgetPlaces() {
    for (Entry& entry : m_entries)
        entry.place.reset();
}

std::vector<GUID> ToolRegistry::placedTools() const {
    std::vector<GUID> tools;
    for (const Entry& entry : m_entries) {
        if (entry.place)
            tools.push_back(entry.id);
    }
    return tools;
}

ToolRegistry::Entry& ToolRegistry::entryOf(const GUID& id) {
    if (findEntry(id) == nullptr)
        m_entries.push_back({id, {}, {}});
    return *std::find_if(m_entries.begin(), m_entries.end(),
                         [&id](const Entry& entry) { return entry.id == id; });
}

const ToolRegistry::Entry* ToolRegistry::findEntry(const GUID& id) const {
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&id](const Entry& entry) { return entry.id == id; });
    return found == m_entries.end() ? nullptr : &*found;
}

}  // namespace workbench
