#include "layer/locked_layer_fade_slider.h"

#include "controls/row_items.h"
#include "controls/variable_access.h"
#include "core/broadcast_messages.h"
#include "core/host_objects.h"
#include "core/message_table.h"
#include "core/message_values.h"
#include "core/resources.h"
#include "core/text.h"

#include <hostapi/qrui18/balloon.h>
#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/vxdb18/host_services.h>
#include <hostapi/zorq/variables.h>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <optional>

namespace {

constexpr const wchar_t* kVariable = L"LAYLOCKFADECTL";
constexpr const wchar_t* kImageOn = L"RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_ON";
constexpr const wchar_t* kImageOff = L"RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_OFF";
constexpr SliderRowSetup kRow{
    .sliderId = 10001, .itemId = L"TPB_LAYER_SLIDERCONTROL1", .imageKey = kImageOn};

constexpr UINT kStrButtonTip = 3995;
constexpr UINT kStrSliderTip = 3996;
constexpr UINT kStrEditTip = 3997;
constexpr UINT kStrBadValue = 3998;  // two inserts: lowest and highest value
constexpr const wchar_t* kLowestText = L"0%";
constexpr const wchar_t* kHighestText = L"90%";

constexpr int kLowestFade = 0;
constexpr int kHighestFade = 90;
constexpr int kLineSize = 1;
constexpr int kFadeFromZero = 50;  // percent
constexpr int kUnitsOfDrawing = -1;

constexpr UINT kSettleTimer = 1;
constexpr UINT kSettleMs = 150;

/// The text of a number field without its percent signs and the blanks around it.
VxString strippedNumber(VxString text) {
    text.erase(std::remove(text.begin(), text.end(), L'%'), text.end());
    return trimmed(text);
}

/// A distance in the drawing's units, truncated to a whole number; nothing if the text is none.
std::optional<int> convertToWhole(const VxString& text) {
    constexpr double kLargest = std::numeric_limits<int>::max();
    double value = 0.0;
    if (vxdbDisToF(text.c_str(), kUnitsOfDrawing, &value) != kRtNorm)
        return {};
    return static_cast<int>(std::clamp(value, -kLargest, kLargest));
}

}  // namespace

constexpr MessageEntry CVxDaLockedLayerTransparencySliderCtrl::kMessages[] = {
    {WM_CREATE, to<&CVxDaLockedLayerTransparencySliderCtrl::onCreate>},
    {WM_TIMER, to<&CVxDaLockedLayerTransparencySliderCtrl::onTimer>},
    {WM_DA_SYSVAR_CHANGED, to<&CVxDaLockedLayerTransparencySliderCtrl::onSysVarChanged>},
    {WM_DA_COMMAND_STARTED, to<&CVxDaLockedLayerTransparencySliderCtrl::onCommandStarted>},
    {WM_DA_COMMAND_ENDED, to<&CVxDaLockedLayerTransparencySliderCtrl::onCommandOver>},
    {WM_DA_COMMAND_CANCELLED, to<&CVxDaLockedLayerTransparencySliderCtrl::onCommandOver>},
};
const MessageMap CVxDaLockedLayerTransparencySliderCtrl::kMessageMap =
    makeMessageMap(&CVxDaSliderEditPanelCtrl::GetThisMessageMap, kMessages);

CVxDaLockedLayerTransparencySliderCtrl::CVxDaLockedLayerTransparencySliderCtrl(
    CVxDaControlMgr* controlMgr)
    : CVxDaSliderEditPanelCtrl(controlMgr),
      m_settling(*this, kSettleTimer, kSettleMs) {}

const MessageMap& CVxDaLockedLayerTransparencySliderCtrl::GetMessageMap() const {
    return kMessageMap;
}

LRESULT CVxDaLockedLayerTransparencySliderCtrl::onCreate(WPARAM /*unused*/, LPARAM create) {
    CQrUiToolPanelItem* button = createRow(creationFrom(create), kRow);
    if (button == nullptr)
        return -1;
    m_fade = readVariableStrict(kVariable);
    setUpSlider();
    showFade();
    m_edit.SetToolTipText(loadDashboardString(kStrEditTip));
    button->SetName(loadDashboardString(kStrButtonTip));
    updateButton();
    return 0;
}

void CVxDaLockedLayerTransparencySliderCtrl::setUpSlider() {
    m_slider.SetSliderRange(kLowestFade, kHighestFade);
    m_slider.SetSliderLineSize(kLineSize);
    m_slider.SetSliderTick(0);
    showThumb();
    m_slider.SetToolTipText(loadDashboardString(kStrSliderTip));
}

void CVxDaLockedLayerTransparencySliderCtrl::OnLButtonClicked(UINT /*flags*/, CPoint /*point*/) {
    // Kept as it is: a click at 0 writes 50, because 0 has no sign that could say "off".
    writeVariableShort(kVariable, m_fade == 0 ? kFadeFromZero : -m_fade);
}

void CVxDaLockedLayerTransparencySliderCtrl::sliderMoved(int position) {
    m_fade = position;
    showFade();
    m_settling.move();
}

LRESULT CVxDaLockedLayerTransparencySliderCtrl::onTimer(WPARAM timer, LPARAM /*unused*/) {
    if (!m_settling.isOwn(timer))
        return Default();
    // A long drag writes once: when it has come to rest.
    if (m_settling.takeTick())
        writeVariableShort(kVariable, m_fade);
    return 0;
}

LRESULT CVxDaLockedLayerTransparencySliderCtrl::onSysVarChanged(WPARAM /*success*/, LPARAM name) {
    if (!isEventNamed(name, kVariable))
        return 0;
    const int fade = readVariableStrict(kVariable);
    if (fade == m_fade)
        return 0;
    m_fade = fade;
    showFade();
    showThumb();
    updateButton();
    return 0;
}

LRESULT CVxDaLockedLayerTransparencySliderCtrl::onCommandStarted(WPARAM /*unused*/,
                                                                 LPARAM /*name*/) {
    EnableWindow(0);
    return 0;
}

LRESULT CVxDaLockedLayerTransparencySliderCtrl::onCommandOver(WPARAM /*unused*/, LPARAM /*name*/) {
    EnableWindow(1);
    updateButton();
    return 0;
}

BOOL CVxDaLockedLayerTransparencySliderCtrl::OnCommand(WPARAM wParam, LPARAM lParam) {
    QrUiHideBalloonTip(this);
    return CVxDaSliderEditPanelCtrl::OnCommand(wParam, lParam);
}

void CVxDaLockedLayerTransparencySliderCtrl::restoreEdit(CQrUiInputEditCtrl& /*field*/) {
    showFade();
}

void CVxDaLockedLayerTransparencySliderCtrl::commitEdit(CQrUiInputEditCtrl& /*field*/) {
    m_fade = parseFade();
    showFade();
    showThumb();
    // Kept as it is: a refused entry writes the old value once more, because the entry and the
    // leaving of the field share this one road.
    writeVariableShort(kVariable, m_fade);
}

int CVxDaLockedLayerTransparencySliderCtrl::parseFade() {
    const VxString text = strippedNumber(m_edit.GetWindowText());
    if (text.empty() || workingDatabase() == nullptr)
        return m_fade;
    const std::optional<int> number = convertToWhole(text);
    if (!number)
        return refuseEntry();
    if (*number == m_fade)
        return m_fade;
    if (*number > kHighestFade)
        return refuseEntry();
    // Kept as it is: a negative number passes, because it is a fade that is switched off.
    return *number;
}

int CVxDaLockedLayerTransparencySliderCtrl::refuseEntry() {
    const VxString text = formatText(loadDashboardString(kStrBadValue), kLowestText, kHighestText);
    QrUiShowBalloonTip(this, &m_edit, text, 0);
    return m_fade;
}

void CVxDaLockedLayerTransparencySliderCtrl::showFade() {
    // The width of the format pads the number with blanks.
    m_edit.SetWindowText(workingDatabase() != nullptr ? formatText(L"%8d", std::abs(m_fade)) + L"%"
                                                      : VxString());
}

void CVxDaLockedLayerTransparencySliderCtrl::showThumb() {
    m_slider.SetSliderPos(std::abs(m_fade));
}

void CVxDaLockedLayerTransparencySliderCtrl::updateButton() {
    m_slider.EnableWindow(isFadingOn());
    m_edit.EnableWindow(isFadingOn());
    CQrUiToolPanelItem* button = GetToolPanelItem(VxString(kRow.itemId));
    if (button == nullptr)
        return;
    setItemImages(*button, isFadingOn() ? kImageOn : kImageOff);
    button->Invalidate();
}
