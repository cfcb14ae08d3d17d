#pragma once

#include "core/family_events.h"

/// Brings all layer filter combos in line with the drawing; nothing without one.
void refreshFilterCombos();

/// What changes layers, and so the filters of the combos.
extern const FamilyEvents kLayerFilterEvents;
