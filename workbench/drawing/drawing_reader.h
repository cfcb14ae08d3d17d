#pragma once

#include "workbench/drawing/drawing.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace workbench::drawing {

/// Reads a drawing file. A section that the file leaves out is as in a new drawing. Throws
/// `InputError`, "FILE:LINE: /json/pointer: reason", for the first thing that is wrong; there is
/// no drawing then. Nothing can be undone in the drawing yet.
std::unique_ptr<Drawing> readDrawing(const std::filesystem::path& file, std::uint32_t serial = 1);

/// The same from a text; `place` stands for the file's name in errors.
std::unique_ptr<Drawing> parseDrawing(std::string_view text, const std::string& place,
                                      std::uint32_t serial = 1);

/// What the "format" member of a drawing file says.
inline constexpr const char* kDrawingFormat = "drawing 1";

}  // namespace workbench::drawing
