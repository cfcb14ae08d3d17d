#include "module/control_table.h"

#include "controls/toolbar_controls.h"
#include "controls/toolbar_group_ctrl.h"
#include "core/text.h"
#include "layer/filter_combo.h"
#include "layer/layer_state_combo.h"
#include "layer/locked_layer_fade_slider.h"
#include "nav3d/camera_point.h"
#include "nav3d/step_slider.h"
#include "nav3d/view_combo.h"
#include "nav3d/zoom_slider.h"
#include "text/text_height_combo.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

/// The toolkit style of most controls that are tool panels.
constexpr UINT kPanelControlStyle = 2;

template <class Control, UINT WindowId, UINT ToolkitStyle = kPanelControlStyle>
std::unique_ptr<CWnd> makePanelControl(CWnd* parent, const CRect& rect, const wchar_t* /*name*/,
                                       CVxDaControlMgr* manager) {
    auto control = std::make_unique<Control>(manager);
    if (!control->Create(WS_CHILD | WS_VISIBLE, rect, parent, WindowId, ToolkitStyle))
        return nullptr;
    return control;
}

std::unique_ptr<CWnd> makeToolbarGroup(CWnd* parent, const CRect& rect, const wchar_t* name,
                                       CVxDaControlMgr* /*manager*/) {
    constexpr UINT kWindowId = 701;
    constexpr UINT kToolkitStyle = 0;
    auto control = std::make_unique<CVxDaToolbarGroupCtrl>(name);
    if (!control->Create(WS_CHILD | WS_VISIBLE, rect, parent, kWindowId, kToolkitStyle))
        return nullptr;
    return control;
}

template <class Combo, UINT WindowId>
std::unique_ptr<CWnd> makeCombo(CWnd* parent, const CRect& rect, const wchar_t* /*name*/,
                                CVxDaControlMgr* /*manager*/) {
    return Combo::make(parent, rect, WindowId);
}

/// In search order; behind these come the host's own toolbar controls.
constexpr ControlTableRow kOwnControls[] = {
    {L"LayerStateComboControl", makeCombo<CVxDaLayerStateComboCtrl, 602>},
    {L"LayerLockTransparencySliderControl",
     makePanelControl<CVxDaLockedLayerTransparencySliderCtrl, 601>},
    {L"LayerFilterComboControl", makeCombo<CVxDaFilterComboCtrl, 603>},
    {L"3DNavZoomSliderControl", makePanelControl<CVxDa3DNavZoomSliderCtrl, 101>},
    {L"3DNavStepSizeSliderControl", makePanelControl<CVxDa3DNavStepSizeSliderCtrl, 102>},
    {L"3DNavStepsPerSecSliderControl", makePanelControl<CVxDa3DNavStepsPerSecSliderCtrl, 103>},
    {L"3DNavViewComboCtrl", makePanelControl<CVxDa3DNavViewComboCtrl, 104>},
    {L"3DNavPointTriplet1", makePanelControl<CVxDa3DNavCameraEyePointCtrl, 105>},
    {L"3DNavPointTriplet2", makePanelControl<CVxDa3DNavCameraTargetPointCtrl, 106>},
    {L"TextHeightComboControl", makeCombo<CVxDaTextHeightComboCtrl, 801>},
};

template <std::size_t Own, std::size_t Wrapped>
constexpr auto allRows(const ControlTableRow (&own)[Own],
                       const ToolbarControlRow (&wrapped)[Wrapped]) {
    std::array<ControlTableRow, Own + Wrapped> rows{};
    std::copy(std::begin(own), std::end(own), rows.begin());
    std::transform(std::begin(wrapped), std::end(wrapped), rows.begin() + Own,
                   [](const ToolbarControlRow& row) {
                       return ControlTableRow{row.name, makeToolbarGroup};
                   });
    return rows;
}

constexpr auto kControls = allRows(kOwnControls, kToolbarControls);

}  // namespace

const ControlTableRow* findControlRow(const VxString& name) {
    for (const ControlTableRow& row : kControls) {
        if (equalNoCase(row.name, name))
            return &row;
    }
    return nullptr;
}
