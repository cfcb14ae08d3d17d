#pragma once

#include "workbench/drawing/database/database.h"

#include <string>

namespace workbench::drawing {

/// What restoring a layer state does with layers that the state doesn't know.
enum class UnknownLayers { Keep, TurnOff };

/// Where restoring puts what can differ from viewport to viewport: into the layers, or into the one
/// viewport alone if it is one of a layout.
enum class RestoredLook { OfLayers, OfViewport };

/// Saves the settings of all layers under a new name, as they are in a viewport: what is frozen there
/// and what looks other. Null saves the layers alone. `duplicateName`, `invalidName`.
Added saveLayerState(Database& database, const std::string& name, const std::string& description,
                     ObjectId viewport);

/// True if every layer that the state knows and the drawing still has is as it was saved. What is
/// otherwise in the viewport counts only for a viewport of a layout.
bool matchesLayerState(const Database& database, ObjectId state, ObjectId viewport);

/// Brings the layers back as they were saved, as one step of undo, and makes the state the one
/// restored last. The current layer is never frozen, and a layer that is in the viewport as it was
/// saved stays as it is, by whatever means. Stops with the status of the first layer
/// that can't be opened.
Status restoreLayerState(Database& database, ObjectId state, ObjectId viewport,
                         UnknownLayers unknown, RestoredLook look = RestoredLook::OfLayers);

}  // namespace workbench::drawing
