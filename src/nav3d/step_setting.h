#pragma once

#include <hostapi/types.h>

#include <optional>

class VxDbDatabase;

/// What the two sliders for steps differ in.
struct StepSetting {
    UINT sliderId;
    int lowest;   ///< Slider position.
    int highest;  ///< Slider position.
    const wchar_t* imageKey;
    const wchar_t* itemId;
    UINT strLabel;  ///< Tip of the field, name of the item and label of the value.
    const wchar_t* variable;
    double valueWithoutDatabase;
    double least;  ///< That may be entered.
    double most;   ///< That may be entered.
    double (VxDbDatabase::*read)() const;
    int (*toSlider)(double value);
    double (*fromSlider)(int position);
    VxString (*format)(double value);
    std::optional<double> (*parse)(const VxString& text);
    VxString (*outOfRangeText)();
    bool (*isRefreshedBy)(const wchar_t* variable);
};

extern const StepSetting kStepSize;
extern const StepSetting kStepsPerSec;
