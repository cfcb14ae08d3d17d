#pragma once

#include "workbench/drawing/drawing.h"

#include <filesystem>
#include <string>

namespace workbench::drawing {

/// The living objects and the variables of a drawing, section by section, as its file holds them.
/// Two drawings are equal when these values are.
Value drawingValue(const Drawing& drawing);

/// The text of the drawing's file. What stands at its default is left out.
std::string drawingText(const Drawing& drawing);

/// Saves the drawing, by way of a second file that then takes the first one's place, so that the
/// old file stays whole when saving fails. Throws `InputError` if the file can't be written.
void saveDrawing(const Drawing& drawing, const std::filesystem::path& file);

}  // namespace workbench::drawing
