#include "controls/slider_panel_ctrl.h"

#include "controls/edit_messages.h"
#include "controls/row_items.h"
#include "core/message_table.h"

#include <hostapi/qrui18/messages.h>

namespace {

constexpr UINT kSliderStyle = 2;

}  // namespace

constexpr MessageEntry CVxDaSliderPanelCtrl::kMessages[] = {
    {WM_QRUI_POSITION, to<&CVxDaSliderPanelCtrl::onSliderMoved>},
};
const MessageMap CVxDaSliderPanelCtrl::kMessageMap =
    makeMessageMap(&CVxDaPanelGroupCtrl::GetThisMessageMap, kMessages);

const MessageMap& CVxDaSliderPanelCtrl::GetThisMessageMap() {
    return kMessageMap;
}

const MessageMap& CVxDaSliderPanelCtrl::GetMessageMap() const {
    return kMessageMap;
}

BOOL CVxDaSliderPanelCtrl::CreateEditPart() {
    return 0;
}

CQrUiToolPanelItem* CVxDaSliderPanelCtrl::createRow(const CREATESTRUCT* creation,
                                                    const SliderRowSetup& setup) {
    if (OnCreate(creation) == -1)
        return nullptr;
    const CRect rect{0, 0, creation->cx, creation->cy};
    if (!m_slider.Create(WS_CHILD | WS_VISIBLE, rect, this, setup.sliderId, kSliderStyle))
        return nullptr;
    CQrUiToolPanelItem* icon = addIconItem(this, setup.itemId, setup.imageKey);
    addControlItem(this, m_slider.m_hWnd);
    CreateEditPart();
    return icon;
}

LRESULT CVxDaSliderPanelCtrl::onSliderMoved(WPARAM position, LPARAM slider) {
    const SliderMove move = SliderMove::from(position, slider);
    if (move.slider == m_slider.m_hWnd)
        sliderMoved(move.position);
    return 0;
}
