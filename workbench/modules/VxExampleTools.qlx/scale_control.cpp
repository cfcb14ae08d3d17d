#include "workbench/modules/VxExampleTools.qlx/scale_control.h"

#include <hostapi/qrui18/messages.h>
#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/vxdb18/host_services.h>
#include <hostapi/zorq/documents.h>
#include <hostapi/zorq/variables.h>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

// What the dashboard broadcasts to all controls on its panels.
constexpr UINT kDocumentBecameCurrent = 1726;
constexpr UINT kSysVarChanged = 1727;  // lParam: the variable's name in the host's spelling

constexpr const wchar_t* kVariable = L"LTSCALE";
constexpr UINT kSliderId = 1;
constexpr UINT kToolkitStyle = 2;
constexpr int kLowest = 1;
constexpr int kHighest = 100;
constexpr int kLockForWrite = 1;
constexpr int kOne = 10;  // the position that stands for a scale of 1

double scaleAt(int position) {
    return static_cast<double>(position) / kOne;
}

int positionOf(double scale) {
    const double nearest = std::round(scale * kOne);
    return static_cast<int>(std::clamp<double>(nearest, kLowest, kHighest));
}

/// A slider moves outside of any command, so the drawing has to be locked for the write.
void writeScale(double scale) {
    const VxDbHostApplicationServices* const services = vxdbHostApplicationServices();
    if (services == nullptr)
        return;
    const VxAxDocLock lock(services->workingDatabase(), kLockForWrite);
    VxResultBuffer value;
    value.type = kRtReal;
    value.value.real = scale;
    vxedSetVar(kVariable, &value);
}

}  // namespace

constexpr MessageEntry ScaleControl::kMessages[] = {
    {WM_CREATE, to<&ScaleControl::onCreate>},
    {WM_QRUI_POSITION, to<&ScaleControl::onSliderMoved>},
    {kDocumentBecameCurrent, to<&ScaleControl::onDocumentBecameCurrent>},
    {kSysVarChanged, to<&ScaleControl::onSysVarChanged>},
};
const MessageMap ScaleControl::kMessageMap{&CQrUiToolPanel::GetThisMessageMap, kMessages,
                                           std::size(kMessages)};

const MessageMap& ScaleControl::GetMessageMap() const {
    static_assert(hostapi::isAscendingAndUnique(kMessages));
    return kMessageMap;
}

LRESULT ScaleControl::onCreate(WPARAM /*unused*/, LPARAM create) {
    const auto* creation = reinterpret_cast<const CREATESTRUCT*>(create);
    if (OnCreate(creation) == -1)
        return -1;
    const CRect rect{0, 0, creation->cx, creation->cy};
    if (!m_slider.Create(WS_CHILD | WS_VISIBLE, rect, this, kSliderId, kToolkitStyle))
        return -1;
    // The item belongs to this panel once it is appended; the slider's window stays a member's.
    auto* const item = new CQrUiToolPanelItem(this);
    item->SetType(kItemControl);
    AddToolPanelItem(item);
    item->SetControl(m_slider.m_hWnd);
    setUpSlider();
    return 0;
}

LRESULT ScaleControl::onSliderMoved(WPARAM position, LPARAM slider) {
    if (reinterpret_cast<HWND>(slider) == m_slider.m_hWnd)
        writeScale(scaleAt(static_cast<int>(LOWORD(position))));
    return 0;
}

LRESULT ScaleControl::onDocumentBecameCurrent(WPARAM /*unused*/, LPARAM /*document*/) {
    // Each drawing has a scale of its own.
    showScale();
    return 0;
}

LRESULT ScaleControl::onSysVarChanged(WPARAM /*success*/, LPARAM name) {
    if (VxString(reinterpret_cast<const wchar_t*>(name)) == kVariable)
        showScale();
    return 0;
}

void ScaleControl::setUpSlider() {
    m_slider.SetSliderRange(kLowest, kHighest);
    m_slider.SetSliderLineSize(1);
    m_slider.SetSliderTick(kOne);
    m_slider.SetToolTipText(L"Scale of linetypes, from 0.1 to 10");
    showScale();
}

void ScaleControl::showScale() {
    VxResultBuffer result;
    if (vxedGetVar(kVariable, &result) == kRtNorm && result.type == kRtReal)
        m_slider.SetSliderPos(positionOf(result.value.real));
}
