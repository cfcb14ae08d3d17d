#include "workbench/windows/message_rows.h"

#include <algorithm>
#include <span>

namespace workbench {

namespace {

std::span<const MessageEntry> rowsOf(const MessageMap& map, UINT message) {
    struct ByMessage {
        bool operator()(const MessageEntry& row, UINT number) const { return row.message < number; }
        bool operator()(UINT number, const MessageEntry& row) const { return number < row.message; }
    };
    const auto [first, end] =
        std::equal_range(map.entries, map.entries + map.count, message, ByMessage{});
    return {first, end};
}

/// The first row of a message, from a table on, that fulfils a condition.
template <class Condition>
FoundRow searchChain(const MessageMap& map, UINT message, Condition condition) {
    for (const MessageMap* each = &map; each != nullptr; each = baseOf(*each)) {
        const std::span<const MessageEntry> rows = rowsOf(*each, message);
        const auto row = std::find_if(rows.begin(), rows.end(), condition);
        if (row != rows.end())
            return {&*row, each};
    }
    return {};
}

}  // namespace

FoundRow MessageRows::search(const MessageMap& map, UINT message) {
    return searchChain(map, message, [](const MessageEntry&) { return true; });
}

FoundRow MessageRows::searchCommand(const MessageMap& map, UINT command) {
    return searchChain(map, WM_COMMAND, [command](const MessageEntry& row) {
        return command >= row.firstCommand && command <= row.lastCommand;
    });
}

}  // namespace workbench
