#pragma once

#include <malloc.h>

#include <cstddef>

namespace support {

/// How many bytes of this process's heap are taken, `malloc` and `new` alike; always 0 where a
/// sanitizer keeps the heap, which tells of leaks itself.
inline std::size_t heapBytesTaken() {
    return mallinfo2().uordblks;
}

}  // namespace support
