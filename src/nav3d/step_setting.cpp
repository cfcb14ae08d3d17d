#include "nav3d/step_setting.h"

#include "controls/value_text.h"
#include "core/resources.h"
#include "core/text.h"
#include "nav3d/step_mapping.h"

#include <hostapi/vxdb18/database.h>

#include <string_view>

namespace {

constexpr UINT kStrStepSizeRange = 1229;
constexpr UINT kStrStepsPerSecRange = 1230;
constexpr double kLeastStepSize = 1e-06;
constexpr double kMostStepSize = 1000000.0;
constexpr int kLeastStepSizeDecimals = 7;

constexpr const wchar_t* kStepSizeVariable = L"STEPSIZE";
constexpr const wchar_t* kStepsPerSecVariable = L"STEPSPERSEC";

VxString stepSizeRangeText() {
    return formatText(loadDashboardString(kStrStepSizeRange),
                      FormatLocaleReal(kLeastStepSize, kLeastStepSizeDecimals),
                      FormatLocaleInteger(static_cast<int>(kMostStepSize)));
}

VxString stepsPerSecRangeText() {
    return loadDashboardString(kStrStepsPerSecRange);
}

constexpr std::wstring_view kStepSizeRefreshing[] = {kStepSizeVariable, L"LUPREC", L"LUNITS"};
// Kept as it is: one name is exact and the other isn't, as hosts have come to send them.
constexpr std::wstring_view kStepsPerSecRefreshing[] = {kStepsPerSecVariable};
constexpr std::wstring_view kStepsPerSecRefreshingAnyCase[] = {L"LUPREC"};

}  // namespace

const StepSetting kStepSize{
    .row = {.sliderId = 5005,
            .itemId = L"TPB_3DNAV_SLIDERCONTROL2",
            .imageKey = L"RCDATA_3DNAV_SLIDERCONTROL2"},
    .lowest = 1,
    .highest = 1000,
    .strLabel = 1227,
    .variable = kStepSizeVariable,
    .valueWithoutDatabase = 6.0,
    .least = kLeastStepSize,
    .most = kMostStepSize,
    .read = &VxDbDatabase::stepSize,
    .toSlider = StepSizeToSlider,
    .fromSlider = SliderToStepSize,
    .format = FormatLinear,
    .parse = parseLinear,
    .outOfRangeText = stepSizeRangeText,
    .refreshing = {kStepSizeRefreshing},
    .refreshingAnyCase = {},
};

const StepSetting kStepsPerSec{
    .row = {.sliderId = 5006,
            .itemId = L"TPB_3DNAV_SLIDERCONTROL3",
            .imageKey = L"RCDATA_3DNAV_SLIDERCONTROL3"},
    .lowest = 10,
    .highest = 300,
    .strLabel = 1228,
    .variable = kStepsPerSecVariable,
    .valueWithoutDatabase = 1.0,
    .least = 1.0,
    .most = 30.0,
    .read = &VxDbDatabase::stepsPerSec,
    .toSlider = StepsPerSecToSlider,
    .fromSlider = SliderToStepsPerSec,
    .format = FormatDecimal,
    .parse = parseDecimalAsShown,
    .outOfRangeText = stepsPerSecRangeText,
    .refreshing = {kStepsPerSecRefreshing},
    .refreshingAnyCase = {kStepsPerSecRefreshingAnyCase, NameMatch::AnyCase},
};
