#include "tests/support/allocation_counter.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> s_allocations = 0;

}  // namespace

namespace support {

std::size_t allocationCount() {
    return s_allocations;
}

}  // namespace support

// The array and nothrow forms of the library come down to these.

void* operator new(std::size_t size) {
    ++s_allocations;
    if (void* const memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
