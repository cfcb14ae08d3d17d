#pragma once

#include "tests/support/control_bench.h"
#include "workbench/base/text.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/tool_panel_item_record.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <string>
#include <vector>

inline constexpr const char* kControl = "LayerLockTransparencySliderControl";
inline constexpr const wchar_t* kVariable = L"LAYLOCKFADECTL";

/// Test fixture: the slider of LAYLOCKFADECTL, which stands at 50.
class FadeSliderTest : public support::ControlBench {
protected:
    void SetUp() override { showControl(kControl); }

    HWND edit() { return field(); }
    void clickButton() { clickIcon(); }
    std::string buttonImage() {
        return workbench::viewOf(bench().toolkit(), *item(L"TPB_LAYER_SLIDERCONTROL1")).image;
    }
    /// How often the variable was written by the module since the last look at the journal.
    std::size_t writes() { return takeCount("vxedSetVar"); }
    int fade() { return static_cast<int>(var(kVariable).asInteger()); }
    std::string largeButtonImage() {
        return bench().toolkit().pictures().source(
            item(L"TPB_LAYER_SLIDERCONTROL1")->m_record->largeImage);
    }
    /// The steps of an entry or a gesture since the last look.
    std::vector<std::string> steps() {
        return takeCallLines({"QrUiHideBalloonTip", "QrUiShowBalloonTip", "CWnd::SetWindowText",
                              "CQrUiProgSliderCtrl::SetSliderPos", "vxdbDisToF", "vxedGetVar",
                              "vxedSetVar", "CWnd::SetTimer", "CWnd::KillTimer",
                              "CWnd::EnableWindow"});
    }
    static std::string textCall(const std::string& text) {
        return "CWnd::SetWindowText(\"CQrUiInputEditCtrl\", \"" + text + "\")";
    }
    static std::string positionCall(int position) {
        return "CQrUiProgSliderCtrl::SetSliderPos(" + std::to_string(position) + ")";
    }
    static std::string writeCall(int value) {
        return "vxedSetVar(\"LAYLOCKFADECTL\", " + std::to_string(value) + ")";
    }
};

/// Steps as they are told.
inline const std::string kHide = "QrUiHideBalloonTip(object)";
inline const std::string kRead = "vxedGetVar(\"LAYLOCKFADECTL\")";
inline const std::string kStartTimer =
    "CWnd::SetTimer(\"LayerLockTransparencySliderControl\", 1, 150)";
inline const std::string kStopTimer = "CWnd::KillTimer(\"LayerLockTransparencySliderControl\", 1)";
inline const std::string kBalloon =
    "QrUiShowBalloonTip(object, object, \"Enter a value from 0% to 90%.\", 0)";
