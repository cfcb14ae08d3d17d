#pragma once

#include "workbench/drawing/database/database.h"

#include <vector>

namespace workbench::drawing {

/// The viewports of a layout, or the tiles of model space for a null layout, by ascending number.
std::vector<ObjectId> viewportsOf(const Database& database, ObjectId layout);

/// The viewport of the number in a layout, or among the tiles for a null layout; null if none.
ObjectId findViewport(const Database& database, ObjectId layout, int number);

/// The layout on show; null while model space is shown in tiles.
ObjectId activeLayout(const Database& database);

/// The viewport in which the user works: a tile, the sheet of a layout or a viewport on it. Null
/// if there is none of the number that counts as current.
ObjectId activeViewport(const Database& database);

/// The layer that new objects go to; null if there is none.
ObjectId currentLayer(const Database& database);

/// What the active viewport shows; null where it names none.
ObjectId activeSun(const Database& database);
ObjectId activeBackground(const Database& database);
ObjectId activeVisualStyle(const Database& database);

}  // namespace workbench::drawing
