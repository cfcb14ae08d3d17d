#pragma once

#include <optional>

/// The lens of the current viewport's view in millimetres; nothing if it can't be read.
std::optional<double> readLens();
/// Gives the current viewport's view a lens, by way of the navigation tool while one runs. The view
/// before it can be undone to. Tells the host that the view changed.
void ApplyLens(double lens);
