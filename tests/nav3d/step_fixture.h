#pragma once

#include "tests/support/control_bench.h"
#include "workbench/base/text.h"
#include "workbench/toolkit/slider_widget.h"
#include "workbench/windows/window_system.h"

#include <ostream>
#include <string>
#include <vector>

/// What the two controls promise, each in its own numbers.
struct StepCase {
    const char* control;
    const wchar_t* variable;
    std::vector<const wchar_t*> refreshing;
    int windowId;
    int sliderId;
    int lowest;
    int highest;
    const wchar_t* itemId;
    const char* image;
    UINT label;
    UINT refusal;
    double value;       // not the one at start
    int valuePosition;  // where it stands
    const wchar_t* valueText;
    int draggedPosition;
    double draggedValue;
    const wchar_t* tooLittle;
    const wchar_t* tooMuch;
    const wchar_t* least;  // that is taken
    const wchar_t* most;
    std::vector<std::wstring> limits;   // that a refusal names
    const wchar_t* textWithoutDrawing;  // while there are units to write it in
    const wchar_t* draggedText;
    const char* writeOfValue;
};

inline void PrintTo(const StepCase& row, std::ostream* out) {
    *out << row.control;
}

inline const StepCase kSize{"3DNavStepSizeSliderControl",
                            L"STEPSIZE",
                            {L"STEPSIZE", L"LUPREC", L"LUNITS"},
                            102,
                            5005,
                            1,
                            1000,
                            L"TPB_3DNAV_SLIDERCONTROL2",
                            "RCDATA_3DNAV_SLIDERCONTROL2",
                            1227,
                            1229,
                            0.5,
                            76,
                            L"0.50",
                            920,
                            10000.0,
                            L"0",
                            L"1000001",
                            L"0.000001",
                            L"1000000",
                            {L".0000010", L"1,000,000"},
                            L"6.00",
                            L"10000.00",
                            "vxedSetVar(\"STEPSIZE\", 0.500000)"};
inline const StepCase kRate{"3DNavStepsPerSecSliderControl",
                            L"STEPSPERSEC",
                            {L"STEPSPERSEC", L"LUPREC", L"luprec"},
                            103,
                            5006,
                            10,
                            300,
                            L"TPB_3DNAV_SLIDERCONTROL3",
                            "RCDATA_3DNAV_SLIDERCONTROL3",
                            1228,
                            1230,
                            15.5,
                            155,
                            L"15.50",
                            145,
                            14.5,
                            L"0.9",
                            L"30.1",
                            L"1",
                            L"30",
                            {},
                            L"1.00",
                            L"14.50",
                            "vxedSetVar(\"STEPSPERSEC\", 15.500000)"};

/// Test fixture: one of the two sliders, with two decimals shown.
class StepSliderTest : public support::ControlBench, public testing::WithParamInterface<StepCase> {
protected:
    void SetUp() override {
        showControl(GetParam().control);
        set(L"LUPREC", 2);
        takeJournal();
    }

    double value() { return var(GetParam().variable).asReal(); }
    std::size_t writes() { return takeCount("vxedSetVar"); }
    std::wstring labelled(const std::wstring& value) {
        return stringOf(GetParam().label) + L":" + value;
    }
    std::wstring refusal() { return filled(GetParam().refusal, GetParam().limits); }
    static std::string textCall(const std::wstring& text) {
        return "CWnd::SetWindowText(\"CQrUiInputEditCtrl\", \"" + workbench::toUtf8(text) + "\")";
    }
    static std::string positionCall(int position) {
        return "CQrUiProgSliderCtrl::SetSliderPos(" + std::to_string(position) + ")";
    }
    std::string balloon() {
        const std::vector<std::string> all = takeTexts("balloon");
        return all.empty() ? std::string() : all.back();
    }
    const workbench::SliderWidget& widget() {
        return *dynamic_cast<workbench::SliderWidget*>(
            bench().windows().find(slider())->widget.get());
    }
};
