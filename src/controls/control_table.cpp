#include "controls/control_table.h"

#include "core/text.h"

#include "layer/locked_layer_fade_slider.h"

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

/// In search order.
constexpr ControlTableRow kControls[] = {
    {L"LayerLockTransparencySliderControl",
     makePanelControl<CVxDaLockedLayerTransparencySliderCtrl, 601>},
};

}  // namespace

const ControlTableRow* findControlRow(const VxString& name) {
    for (const ControlTableRow& row : kControls) {
        if (equalNoCase(row.name, name))
            return &row;
    }
    return nullptr;
}
