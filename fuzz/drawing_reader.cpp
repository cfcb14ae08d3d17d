#include "workbench/drawing/drawing_reader.h"

#include "workbench/base/input_error.h"
#include "workbench/drawing/drawing_writer.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

/// Any text is either read as a drawing or refused with one placed complaint; and what was read is
/// saved as an equal drawing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace workbench::drawing;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    std::unique_ptr<Drawing> drawing;
    try {
        drawing = parseDrawing(text, "fuzz.json");
    } catch (const workbench::InputError&) {
        return 0;
    }
    // A complaint about the saved text is not caught: it would be a fault.
    const std::unique_ptr<Drawing> again = parseDrawing(drawingText(*drawing), "again.json");
    if (!(drawingValue(*again) == drawingValue(*drawing)))
        std::abort();
    return 0;
}
