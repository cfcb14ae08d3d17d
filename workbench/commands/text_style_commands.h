#pragma once

#include "workbench/editor/command_registry.h"

namespace workbench {

/// -STYLE at the command line, and STYLE with its dialog: a text style gets another font, height, width
/// and slant, is added if there is none of its name, and becomes the current one. The dialog is answered
/// by a table with `name` (left out, the current style), `font`, `height`, `width` and `oblique`
/// (degrees); without an answer it is cancelled.
///
/// While the current style has a height of its own, TEXTSIZE is that height.
void addTextStyleCommands(CommandRegistry& registry);

}  // namespace workbench
