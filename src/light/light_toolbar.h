#pragma once

#include "core/family_events.h"

/// Brings the tools that depend on the lighting units in line with the drawing: what is on offer,
/// what is shown, and the current tools of the sky and units flyouts. Nothing without a panel set.
void refreshLightingUnits();

/// What changes the lighting units.
extern const FamilyEvents kLightingUnitsEvents;
