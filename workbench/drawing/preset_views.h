#pragma once

#include "workbench/drawing/records/view_parameters.h"

namespace workbench::drawing {

/// The views from the sides and corners, by the numbers that lists of views give them.
enum class PresetView {
    Top,
    Bottom,
    Front,
    Back,
    Left,
    Right,
    SouthWest,
    SouthEast,
    NorthEast,
    NorthWest
};

/// How many there are.
constexpr int kPresetViewCount = 10;

/// Turns the camera to a preset, around its target and at the same distance, without perspective.
void turnTo(ViewParameters& view, PresetView preset);

}  // namespace workbench::drawing
