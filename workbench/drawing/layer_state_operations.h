#pragma once

#include "workbench/drawing/database/database.h"

#include <string>

namespace workbench::drawing {

/// What restoring a layer state does with layers that the state doesn't know.
enum class UnknownLayers { Keep, TurnOff };

/// Saves the settings of all layers under a new name. `viewport` tells in which viewport the
/// layers' freezing is saved; null saves none. `duplicateName`, `invalidName`.
Added saveLayerState(Database& database, const std::string& name, const std::string& description,
                     ObjectId viewport);

/// True if every layer that the state knows and the drawing still has is as it was saved. Freezing
/// in the viewport counts only for a viewport of a layout.
bool matchesLayerState(const Database& database, ObjectId state, ObjectId viewport);

/// Brings the layers back as they were saved, as one step of undo, and makes the state the one
/// restored last. The current layer is never frozen. Stops with the status of the first layer
/// that can't be opened.
Status restoreLayerState(Database& database, ObjectId state, ObjectId viewport,
                         UnknownLayers unknown);

}  // namespace workbench::drawing
