#pragma once

#include "core/family_events.h"

/// The flyout of material modes, which shows the tool of the current one. The first event after the
/// load refreshes it, whatever its name.
extern const FamilyEvents kMaterialModeEvents;
