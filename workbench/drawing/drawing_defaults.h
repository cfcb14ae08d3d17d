#pragma once

#include "workbench/drawing/database/database.h"

namespace workbench::drawing {

/// Adds what a new drawing has of a kind: layer "0", text style "Standard", five visual styles,
/// one layout, one tile, the filter tree, the render presets that come with the program and their
/// settings. Nothing for the kinds that a drawing can do without.
void addDefaults(Database& database, RecordKind kind);

/// Fills the references that a drawing must have and that are still empty: the sheet of each
/// layout, the visual style of each tile, and the current layer, text style and layout.
void settleReferences(Database& database);

}  // namespace workbench::drawing
