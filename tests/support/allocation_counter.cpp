#include "tests/support/allocation_counter.h"

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> s_allocations = 0;

#if defined(__SANITIZE_ADDRESS__) || defined(NDEBUG)
/// The sanitizer watches over what was given back; a measurement wants nothing watched.
void giveBack(void* memory, std::size_t /*size*/) {
    std::free(memory);
}
#else
/// Overwrites memory that is about to be given back, so that whoever still uses it breaks. The words
/// are no addresses, their bytes are truths, and they lie so far apart that a list whose ends they
/// are doesn't pass for an empty one.
void spoil(void* memory, std::size_t size) {
    constexpr std::uintptr_t kFirstWord = UINTPTR_MAX / 0xff;  // 1 in every byte
    constexpr std::uintptr_t kDistance = 0x1000000;
    auto* const words = static_cast<volatile std::uintptr_t*>(memory);  // or nothing is written
    for (std::size_t i = 0; i < size / sizeof(std::uintptr_t); ++i)
        words[i] = kFirstWord + i * kDistance;
}

/// Gives an object's memory back a while later, so that it isn't soon another's and looks well again.
/// What is larger goes at once.
void giveBack(void* memory, std::size_t size) {
    constexpr std::size_t kLargestObject = 4096;  // bytes
    constexpr std::size_t kWaiting = 1024;
    static std::atomic<void*> s_waiting[kWaiting];
    static std::atomic<std::size_t> s_next = 0;
    if (size > kLargestObject)
        return std::free(memory);
    spoil(memory, size);
    std::free(s_waiting[s_next++ % kWaiting].exchange(memory));
}
#endif

}  // namespace

namespace support {

std::size_t allocationCount() {
    return s_allocations;
}

}  // namespace support

// The array forms of the library come down to these. The nothrow form does too, but not that of a
// sanitizer's library, so it stands here.

void* operator new(std::size_t size) {
    ++s_allocations;
    if (void* const memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    ++s_allocations;
    return std::malloc(size == 0 ? 1 : size);
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t size) noexcept {
    if (memory != nullptr)
        giveBack(memory, size);
}
