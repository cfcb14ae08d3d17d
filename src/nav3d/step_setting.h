#pragma once

#include "controls/slider_panel_ctrl.h"
#include "core/event_names.h"

#include <optional>

class VxDbDatabase;

/// What the two sliders for steps differ in.
struct StepSetting {
    SliderRowSetup row;
    int lowest;     ///< Slider position.
    int highest;    ///< Slider position.
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
    EventNames refreshing;         ///< Variables that change what is shown.
    EventNames refreshingAnyCase;  ///< More of them.
};

extern const StepSetting kStepSize;
extern const StepSetting kStepsPerSec;
