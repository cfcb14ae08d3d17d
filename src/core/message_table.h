#pragma once

#include <hostapi/window/message_map.h>

#include <cstddef>

/// A window class's message table, chained to its direct base's. Rows that aren't ascending, or one
/// that stands twice, don't compile.
template <std::size_t Count>
consteval MessageMap makeMessageMap(const MessageMap& (*base)(),
                                    const MessageEntry (&entries)[Count]) {
    if (!hostapi::isAscendingAndUnique(entries))
        throw "rows must be ascending and unique";
    return {base, entries, Count};
}
