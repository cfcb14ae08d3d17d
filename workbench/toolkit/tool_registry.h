#pragma once

#include "workbench/toolkit/bar_place.h"

#include <hostapi/types.h>

#include <optional>
#include <string>
#include <vector>

namespace workbench {

/// The tools that modules have registered, and where the user last had their bars.
class ToolRegistry {
public:
    /// How a tool is shown.
    struct Tool {
        std::wstring moduleName;
        std::wstring command;
    };

    /// Enters a tool; an earlier entry of the ID is replaced.
    void add(const GUID& id, Tool tool);
    /// The tool of an ID; null for none. Good until the next change.
    const Tool* find(const GUID& id) const;

    /// Remembers where the bar of a tool stands.
    void rememberPlace(const GUID& id, const BarPlace& place);
    /// Where the user last had the bar of a tool; nothing if it never stood anywhere.
    std::optional<BarPlace> placeOf(const GUID& id) const;
    /// Forgets where all bars stood.
    void forgetPlaces();
    /// The tools whose bars have stood somewhere, in the order in which they came up.
    std::vector<GUID> placedTools() const;

private:
    struct Entry {
        GUID id;
        std::optional<Tool> tool;
        std::optional<BarPlace> place;
    };
    Entry& entryOf(const GUID& id);
    const Entry* findEntry(const GUID& id) const;

    std::vector<Entry> m_entries;
};

}  // namespace workbench
