#pragma once

#include <cstddef>

namespace support {

/// How many times this process has taken memory with `new`, the libraries that it loaded included.
std::size_t allocationCount();

}  // namespace support
