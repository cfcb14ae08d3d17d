#include "visualstyle/material_mode.h"

#include "controls/variable_access.h"
#include "palette/tool_items.h"

#include <iterator>

namespace {

constexpr const wchar_t* kVariable = L"VSMATERIALMODE";
constexpr std::wstring_view kVariables[] = {kVariable, L"VSCURRENT"};
constexpr const wchar_t* kFlyout = L"TPL_0023";

/// The flyout's tools, by the variable's value.
constexpr const wchar_t* kTools[] = {L"ID_VSMM0", L"ID_VSMM1", L"ID_VSMM2"};

bool s_refreshPending = true;  // the state at start is not known yet

bool isRefreshPending() {
    return s_refreshPending;
}

void refreshMaterialMode() {
    const int mode = readVariableShort(kVariable);
    if (mode >= 0 && mode < static_cast<int>(std::size(kTools)))
        selectFlyoutTool(kFlyout, kTools[mode]);
    s_refreshPending = false;
}

}  // namespace

// Kept as it is: a command of a variable's name counts too, because both come by one road.
const FamilyEvents kMaterialModeEvents{
    .variables = {kVariables, NameMatch::AnyCase},
    .commands = {kVariables, NameMatch::AnyCase},
    .isDue = isRefreshPending,
    .refresh = refreshMaterialMode,
};
