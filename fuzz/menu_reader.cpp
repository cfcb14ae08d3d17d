#include "workbench/menu/menu_reader.h"

#include "workbench/base/input_error.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

/// Any text is either read as menu data or refused with one placed complaint.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        workbench::readMenuText(text, "fuzz.json");
    } catch (const workbench::InputError&) {
        return 0;
    }
    return 0;
}
