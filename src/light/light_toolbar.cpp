#include "light/light_toolbar.h"

#include "controls/variable_access.h"
#include "core/roof.h"
#include "light/sky_state.h"
#include "palette/tool_items.h"

#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/vxdb18.h>

namespace {

constexpr std::wstring_view kVariables[] = {L"LIGHTINGUNITS"};

constexpr const wchar_t* kExposureTool = L"ID_Adjust_Exposure";
constexpr const wchar_t* kDistantLightTool = L"ID_DistantLight";
constexpr const wchar_t* kSkyFlyout = L"TPL_0030";
constexpr const wchar_t* kMidtonesControl = L"LightSliderControl5";
constexpr const wchar_t* kUnitsFlyout = L"TPL_0042";

constexpr int kGenericUnits = 0;
constexpr int kAmericanUnits = 1;
constexpr int kInternationalUnits = 2;

int readUnits() {
    return readVariableStrict(L"LIGHTINGUNITS");
}

/// One ID a call: an ID that stands on no panel must not keep the other from being treated.
void hidePhotometricItems(bool hide) {
    setItemsHidden({kSkyFlyout}, hide);
    setItemsHidden({kMidtonesControl}, hide);
}

void updateUnitsFlyout() {
    switch (readUnits()) {
    case kAmericanUnits:
        selectFlyoutTool(kUnitsFlyout, L"ID_LightingUnitsAmerican");
        break;
    case kInternationalUnits:
        selectFlyoutTool(kUnitsFlyout, L"ID_LightingUnitsSI");
        break;
    default:
        selectFlyoutTool(kUnitsFlyout, L"ID_LightingUnitsGeneric");
    }
}

void updateSkyFlyout() {
    const std::optional<int> status = readSkyStatus();
    if (!status)
        return;
    const wchar_t* tool = kSkyOffTool;
    if (*status == kSkyStatusOn) {
        tool = readSkyIllumination() ? kSkyIlluminationTool : kSkyBackgroundTool;
    }
    selectFlyoutTool(kSkyFlyout, tool);
}

bool isPaperSpace(const VxDbDatabase& database) {
    constexpr int kPaperSpaceViewport = 1;
    return !database.tilemode() && readVariableStrict(L"CVPORT") == kPaperSpaceViewport;
}

void updateForGenericUnits() {
    SetItemFlag(kExposureTool, true, kItemDisabled);
    SetItemFlag(kDistantLightTool, false, kItemDisabled);
    hidePhotometricItems(true);
    updateUnitsFlyout();
}

void updateForPhotometricUnits() {
    SetItemFlag(kExposureTool, false, kItemDisabled);
    SetItemFlag(kDistantLightTool, true, kItemDisabled);
    hidePhotometricItems(false);
    const VxDbHostApplicationServices* services = vxdbHostApplicationServices();
    const VxDbDatabase* database = services == nullptr ? nullptr : services->workingDatabase();
    if (database == nullptr)
        return;
    const bool paperSpace = isPaperSpace(*database);
    for (const wchar_t* tool : {kSkyOffTool, kSkyBackgroundTool, kSkyIlluminationTool}) {
        SetItemFlag(tool, paperSpace, kItemDisabled);
    }
    updateSkyFlyout();
    updateUnitsFlyout();
}

}  // namespace

const FamilyEvents kLightingUnitsEvents{
    .variables = {kVariables, NameMatch::AnyCase},
    .commands = {},
    .refresh = refreshLightingUnits,
};

void refreshLightingUnits() {
    if (currentPanelSet() == nullptr)
        return;
    // Units that can't be read count as photometric ones.
    if (readUnits() == kGenericUnits) {
        updateForGenericUnits();
    } else {
        updateForPhotometricUnits();
    }
}
