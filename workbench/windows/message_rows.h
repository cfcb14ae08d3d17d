#pragma once

#include <hostapi/window.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace workbench {

/// A row of a message table, and which table of the chain of bases holds it.
struct FoundRow {
    const MessageEntry* row = nullptr;   ///< null: no table of the chain has one
    const MessageMap* holder = nullptr;  ///< null with the row
};

/// Finds the rows of message tables, and remembers what it found: of the messages that are sent to
/// many windows at once, no table is searched twice.
///
/// The tables are their modules'. What was found must be forgotten before a module goes, because
/// another one may have its tables at the same addresses.
class MessageRows {
public:
    /// The nearest row of a message, from a table on along the chain of its bases. Not for
    /// `WM_COMMAND`.
    FoundRow find(const MessageMap& map, UINT message) {
        Memory& memory = m_memory[placeOf(map, message)];
        if (memory.map != &map || memory.message != message)
            memory = {&map, search(map, message), message};
        return memory.found;
    }
    /// The same without remembering it, for a table that may be gone by the next time.
    static FoundRow search(const MessageMap& map, UINT message);
    /// The nearest row of `WM_COMMAND` whose range holds a command.
    static FoundRow searchCommand(const MessageMap& map, UINT command);
    /// Forgets all that was found.
    void forget() { m_memory.fill({}); }

private:
    struct Memory {
        const MessageMap* map = nullptr;  // null: nothing is remembered here
        FoundRow found;
        UINT message = 0;
    };

    static constexpr std::size_t kPlaces = 128;

    /// Neighbouring tables, and neighbouring messages of one table, have different places.
    static std::size_t placeOf(const MessageMap& map, UINT message) {
        const auto address = reinterpret_cast<std::uintptr_t>(&map);
        return (address / alignof(MessageMap) + std::size_t{31} * message) % kPlaces;
    }

    std::array<Memory, kPlaces> m_memory;  // by place; the latest find has it
};

/// The table of the base class; null at the end of the chain.
inline const MessageMap* baseOf(const MessageMap& map) {
    return map.base == nullptr ? nullptr : &map.base();
}

}  // namespace workbench
