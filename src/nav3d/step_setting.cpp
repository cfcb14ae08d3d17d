#include "nav3d/step_setting.h"

#include "nav3d/step_mapping.h"
#include "controls/value_text.h"

#include "core/resources.h"
#include "core/text.h"

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

bool refreshesStepSize(const wchar_t* variable) {
    const std::wstring_view name = variable;
    return name == kStepSizeVariable || name == L"LUPREC" || name == L"LUNITS";
}

bool refreshesStepsPerSec(const wchar_t* variable) {
    // Kept as it is: one name is exact and the other isn't, as hosts have come to send them.
    return variable == std::wstring_view(kStepsPerSecVariable) || equalNoCase(variable, L"LUPREC");
}

}  // namespace

const StepSetting kStepSize{
    .sliderId = 5005,
    .lowest = 1,
    .highest = 1000,
    .imageKey = L"RCDATA_3DNAV_SLIDERCONTROL2",
    .itemId = L"TPB_3DNAV_SLIDERCONTROL2",
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
    .isRefreshedBy = refreshesStepSize,
};

const StepSetting kStepsPerSec{
    .sliderId = 5006,
    .lowest = 10,
    .highest = 300,
    .imageKey = L"RCDATA_3DNAV_SLIDERCONTROL3",
    .itemId = L"TPB_3DNAV_SLIDERCONTROL3",
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
    .isRefreshedBy = refreshesStepsPerSec,
};
