#include "module/family_rows.h"

#include "core/family_events.h"
#include "layer/filter_refresh.h"
#include "light/light_toolbar.h"
#include "visualstyle/material_mode.h"

namespace {

/// In the order in which they are told.
const FamilyEvents* const kFamilies[] = {
    &kMaterialModeEvents,
    &kLightingUnitsEvents,
    &kLayerFilterEvents,
};

bool isDue(const FamilyEvents& family) {
    return family.isDue != nullptr && family.isDue();
}

}  // namespace

void refreshFamiliesForVariable(std::wstring_view name) {
    for (const FamilyEvents* family : kFamilies) {
        if (family->variables.contains(name) || isDue(*family))
            family->refresh();
    }
}

void refreshFamiliesForCommand(std::wstring_view name) {
    for (const FamilyEvents* family : kFamilies) {
        if (family->commands.contains(name) || isDue(*family))
            family->refresh();
    }
}

void refreshFamiliesForDocument() {
    for (const FamilyEvents* family : kFamilies) {
        if (family->documents)
            family->refresh();
    }
}
