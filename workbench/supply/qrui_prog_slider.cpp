#include "workbench/core/host_call.h"
#include "workbench/supply/qrui_window.h"
#include "workbench/toolkit/slider_widget.h"
#include "workbench/toolkit/toolkit.h"

#include <hostapi/qrui18/prog_slider.h>

using workbench::HostCall;
using workbench::SliderWidget;
using workbench::supply::toolkit;
using workbench::supply::windows;

namespace {

SliderWidget* widgetOf(const CWnd& slider) {
    return windows().widgetOf<SliderWidget>(&slider);
}

}  // namespace

BOOL CQrUiProgSliderCtrl::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id,
                                 UINT toolkitStyle) {
    HostCall call("CQrUiProgSliderCtrl::Create", {style, parent, id, toolkitStyle});
    if (call.failed())
        return call.returns(0);
    using namespace workbench::supply;
    auto creation = creationOf("CQrUiProgSliderCtrl", style, rect, parent, id);
    auto widget = std::make_unique<SliderWidget>(toolkit());
    widget->setStyle(toolkitStyle);
    const bool made = createChild(*this, std::move(creation), std::move(widget));
    return call.returns(made ? 1 : 0);
}

void CQrUiProgSliderCtrl::SetSliderRange(int lowest, int highest) {
    if (SliderWidget* const slider = widgetOf(*this))
        slider->setRange(*windows().find(m_hWnd), lowest, highest);
}

void CQrUiProgSliderCtrl::SetSliderLineSize(int positions) {
    if (SliderWidget* const slider = widgetOf(*this))
        slider->setLineSize(positions);
}

void CQrUiProgSliderCtrl::SetSliderTick(int position) {
    if (SliderWidget* const slider = widgetOf(*this))
        slider->addTick(position);
}

void CQrUiProgSliderCtrl::SetSliderPos(int position) {
    const HostCall call("CQrUiProgSliderCtrl::SetSliderPos", {position});
    if (SliderWidget* const slider = widgetOf(*this))
        slider->setPosition(*windows().find(m_hWnd), position);
}

int CQrUiProgSliderCtrl::GetSliderPos() const {
    const SliderWidget* const slider = widgetOf(*this);
    return slider == nullptr ? 0 : slider->position();
}

void CQrUiProgSliderCtrl::SetToolTipText(const VxString& text) {
    if (SliderWidget* const slider = widgetOf(*this))
        slider->setTip(text);
}

UINT CQrUiProgSliderCtrl::GetControlStyle() const {
    const SliderWidget* const slider = widgetOf(*this);
    return slider == nullptr ? 0 : slider->style();
}

void CQrUiProgSliderCtrl::SetControlStyle(UINT style) {
    if (SliderWidget* const slider = widgetOf(*this))
        slider->setStyle(style);
}

void CQrUiProgSliderCtrl::ShowToolTip() {
    const HostCall call("CQrUiProgSliderCtrl::ShowToolTip");
    const SliderWidget* const slider = widgetOf(*this);
    if (slider != nullptr && (slider->isDragging() || toolkit().mouse().over() == m_hWnd))
        toolkit().toolTips().show(m_hWnd, slider->tip());
}
