#include "visualstyle/material_mode.h"

#include "controls/variable_access.h"
#include "core/text.h"
#include "palette/tool_items.h"

#include <iterator>

namespace {

constexpr const wchar_t* kVariable = L"VSMATERIALMODE";
constexpr const wchar_t* kFlyout = L"TPL_0023";

/// The flyout's tools, by the variable's value.
constexpr const wchar_t* kTools[] = {L"ID_VSMM0", L"ID_VSMM1", L"ID_VSMM2"};

bool s_refreshPending = true;  // the state at start is not known yet

void updateMaterialModeFlyout() {
    const int mode = readVariableShort(kVariable);
    if (mode < 0 || mode >= static_cast<int>(std::size(kTools)))
        return;
    selectFlyoutTool(kFlyout, kTools[mode]);
}

}  // namespace

void refreshMaterialModeFor(std::wstring_view name) {
    const bool concerns = equalNoCase(name, kVariable) || equalNoCase(name, L"VSCURRENT");
    if (!concerns && !s_refreshPending)
        return;
    updateMaterialModeFlyout();
    s_refreshPending = false;
}
