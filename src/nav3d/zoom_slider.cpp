#include "nav3d/zoom_slider.h"

#include "controls/value_text.h"
#include "controls/view_state.h"
#include "core/broadcast_messages.h"
#include "core/event_names.h"
#include "core/host_objects.h"
#include "core/message_table.h"
#include "core/message_values.h"
#include "core/resources.h"
#include "core/roof.h"
#include "core/string_ids.h"
#include "core/text.h"
#include "nav3d/lens_mapping.h"
#include "nav3d/lens_view.h"
#include "nav3d/toolbar_state.h"

#include <hostapi/qrui18/balloon.h>
#include <hostapi/qrui18/tool_panel_item.h>

#include <string_view>

namespace {

constexpr SliderRowSetup kRow{.sliderId = 5004,
                              .itemId = L"TPB_3DNAV_SLIDERCONTROL1",
                              .imageKey = L"RCDATA_3DNAV_SLIDERCONTROL1"};
constexpr UINT kAddedSliderStyle = 4 | 16;

/// Both ends and the customary lenses: 15, 20, 24, 28, 35, 50, 85, 135 and 200 mm.
constexpr int kTicks[] = {kLensSliderLowest, 150, 200, 240, 280, 350, 500, 850, 1350, 2000,
                          kLensSliderHighest};

constexpr UINT kStrLensTip = 1241;
constexpr UINT kStrLensLine = 1242;
constexpr UINT kStrAngleTip = 1243;
constexpr UINT kStrAngleLine = 1244;
constexpr UINT kStrItemName = 1245;
constexpr UINT kStrNoValue = 1246;
constexpr UINT kStrOutOfRange = 1247;

constexpr int kPrecisionOfDrawing = -1;
constexpr int kShortestLensDecimals = 3;
constexpr int kNarrowestAngleDecimals = 3;
constexpr int kWidestAngleDecimals = 1;

/// What makes the control read the view again.
constexpr std::wstring_view kRefreshingVariables[] = {
    L"CVPORT", L"TILEMODE", L"PERSPECTIVE", L"LUPREC",
    L"LUNITS", L"AUPREC",   L"AUNITS",      L"DASHBOARDSTATE",
};
constexpr EventNames kRefreshing{kRefreshingVariables};

}  // namespace

constexpr MessageEntry CVxDa3DNavZoomSliderCtrl::kMessages[] = {
    {WM_CREATE, to<&CVxDa3DNavZoomSliderCtrl::onCreate>},
    {WM_IDLEUPDATECMDUI, to<&CVxDa3DNavZoomSliderCtrl::onIdle>},
    {WM_DA_DOC_BECAME_CURRENT, to<&CVxDa3DNavZoomSliderCtrl::onDocumentOrView>},
    {WM_DA_SYSVAR_CHANGED, to<&CVxDa3DNavZoomSliderCtrl::onSysVarChanged>},
    {WM_DA_COMMAND_ENDED, to<&CVxDa3DNavZoomSliderCtrl::onCommandEnded>},
    {WM_DA_VIEW_CHANGED, to<&CVxDa3DNavZoomSliderCtrl::onDocumentOrView>},
};
const MessageMap CVxDa3DNavZoomSliderCtrl::kMessageMap =
    makeMessageMap(&CVxDaSliderEditPanelCtrl2::GetThisMessageMap, kMessages);

CVxDa3DNavZoomSliderCtrl::CVxDa3DNavZoomSliderCtrl(CVxDaControlMgr* controlMgr)
    : CVxDaSliderEditPanelCtrl2(controlMgr) {}

const MessageMap& CVxDa3DNavZoomSliderCtrl::GetMessageMap() const {
    return kMessageMap;
}

LRESULT CVxDa3DNavZoomSliderCtrl::onCreate(WPARAM /*unused*/, LPARAM create) {
    CQrUiToolPanelItem* icon = createRow(creationFrom(create), kRow);
    if (icon == nullptr)
        return -1;
    setUpSlider();
    m_edit2.EnableWindow(1);
    m_edit.SetToolTipText(loadDashboardString(kStrLensTip));
    m_edit2.SetToolTipText(loadDashboardString(kStrAngleTip));
    icon->SetName(loadDashboardString(kStrItemName));
    // No values yet: they come with the first message that refreshes.
    return 0;
}

void CVxDa3DNavZoomSliderCtrl::setUpSlider() {
    m_slider.SetControlStyle(m_slider.GetControlStyle() | kAddedSliderStyle);
    m_slider.SetSliderRange(kLensSliderLowest, kLensSliderHighest);
    for (const int tick : kTicks)
        m_slider.SetSliderTick(tick);
}

void CVxDa3DNavZoomSliderCtrl::OnLButtonClicked(UINT /*flags*/, CPoint /*point*/) {
    m_edit.SetFocus();
}

LRESULT CVxDa3DNavZoomSliderCtrl::onIdle(WPARAM /*unused*/, LPARAM /*unusedToo*/) {
    if (workingDatabase() == nullptr)
        return 0;
    if (m_idleRefresh)
        Refresh();
    if (isDashboardVisible())
        UpdateToolbarState();
    return 0;
}

LRESULT CVxDa3DNavZoomSliderCtrl::onDocumentOrView(WPARAM /*unused*/, LPARAM /*unusedToo*/) {
    Refresh();
    return 0;
}

LRESULT CVxDa3DNavZoomSliderCtrl::onSysVarChanged(WPARAM /*success*/, LPARAM name) {
    if (kRefreshing.contains(eventNameFrom(name)))
        Refresh();
    return 0;
}

LRESULT CVxDa3DNavZoomSliderCtrl::onCommandEnded(WPARAM /*unused*/, LPARAM /*name*/) {
    Refresh();
    UpdateToolbarState();
    m_idleRefresh = true;
    return 0;
}

void CVxDa3DNavZoomSliderCtrl::Refresh() {
    if (!isDashboardVisible())
        return;
    UpdateEnabledState();
    if (IsPerspectiveView())
        UpdateFromView();
}

void CVxDa3DNavZoomSliderCtrl::UpdateEnabledState() {
    const bool perspective = IsPerspectiveView();
    if (perspective == (m_slider.IsWindowEnabled() != 0))
        return;
    m_slider.EnableWindow(perspective);
    m_edit.EnableWindow(perspective);
    m_edit2.EnableWindow(perspective);
}

void CVxDa3DNavZoomSliderCtrl::UpdateFromView() {
    const std::optional<double> lens = readLens();
    if (!lens)
        return;
    const int position = LensToSlider(*lens);
    if (m_slider.GetSliderPos() != position)
        m_slider.SetSliderPos(position);
    // The lens itself, so that the slider's steps never reach the fields.
    ShowLens(*lens);
}

void CVxDa3DNavZoomSliderCtrl::ShowLens(double lens) {
    const VxString lensText = FormatDecimal(lens);
    const VxString angleText = FormatAngle(lensToAngle(lens), kPrecisionOfDrawing);
    m_slider.SetToolTipText(formatText(loadDashboardString(kStrLensLine), lensText.c_str()) +
                            L"\n" +
                            formatText(loadDashboardString(kStrAngleLine), angleText.c_str()));
    m_slider.ShowToolTip();
    m_edit.SetWindowText(lensText);
    m_edit2.SetWindowText(angleText);
}

void CVxDa3DNavZoomSliderCtrl::sliderMoved(int position) {
    // Kept as it is: a locked viewport isn't asked for here, only an entry is refused.
    const double lens = SliderToLens(position);
    ApplyLens(lens);
    ShowLens(lens);
}

void CVxDa3DNavZoomSliderCtrl::fieldEntered(CQrUiInputEditCtrl& field) {
    m_idleRefresh = false;
    const VxString text = field.GetWindowText();
    if (isLensField(field) ? parseDecimal(text) : parseAngle(text))
        m_accepted.accept(text);
}

void CVxDa3DNavZoomSliderCtrl::fieldLeft(CQrUiInputEditCtrl& field) {
    // Before the entry: one that is refused gives the field its focus back.
    m_idleRefresh = true;
    commitEdit(field);
}

void CVxDa3DNavZoomSliderCtrl::restoreEdit(CQrUiInputEditCtrl& field) {
    m_accepted.restore(field);
}

void CVxDa3DNavZoomSliderCtrl::commitEdit(CQrUiInputEditCtrl& field) {
    const VxString text = trimmed(field.GetWindowText());
    if (m_accepted.is(text))
        return;
    if (text.empty()) {
        m_accepted.restore(field);
        return;
    }
    if (IsViewportLocked()) {
        QrUiShowBalloonTip(this, &field, loadDashboardString(kStrViewportLocked), 0);
        m_accepted.restore(field);
        return;
    }
    const std::optional<double> value = ValidateEdit(field, text);
    if (!value)
        return;
    if (!IsPerspectiveView())
        return;  // an entry that arrives all the same is taken, and changes nothing
    const std::optional<double> lens = lensOf(field, *value);
    if (!lens) {
        m_accepted.giveBack(field);
        QrUiShowBalloonTip(this, &field, rangeText(field), 0);
        return;
    }
    ApplyLens(*lens);
    UpdateFromView();
    m_accepted.accept(field.GetWindowText());
}

std::optional<double> CVxDa3DNavZoomSliderCtrl::ValidateEdit(CQrUiInputEditCtrl& field,
                                                             const VxString& text) {
    // Kept as it is: an angle is read as decimal degrees although it is shown in the drawing's units.
    const std::optional<double> value =
        isLensField(field) ? parseDecimalAsShown(text) : parseDegrees(text);
    QrUiHideBalloonTip(this);
    if (!value) {
        QrUiShowBalloonTip(this, &field, loadDashboardString(kStrNoValue), 0);
        m_accepted.giveBack(field);
    }
    return value;
}

std::optional<double> CVxDa3DNavZoomSliderCtrl::lensOf(const CQrUiInputEditCtrl& field,
                                                       double value) const {
    if (isLensField(field)) {
        const bool inRange = value >= kShortestLens && value <= kLongestLens;
        return inRange ? std::optional(value) : std::nullopt;
    }
    // The limits themselves are taken, however the host rounds them.
    constexpr double kRounding = 1.0e-12;
    const bool inRange = value >= kNarrowestAngle - kRounding && value <= kWidestAngle + kRounding;
    return inRange ? std::optional(angleToLens(value)) : std::nullopt;
}

VxString CVxDa3DNavZoomSliderCtrl::rangeText(const CQrUiInputEditCtrl& field) const {
    const VxString format = loadDashboardString(kStrOutOfRange);
    if (isLensField(field)) {
        return formatText(format, FormatLocaleReal(kShortestLens, kShortestLensDecimals),
                          FormatLocaleInteger(static_cast<int>(kLongestLens)));
    }
    return formatText(format, FormatAngle(kNarrowestAngle, kNarrowestAngleDecimals).c_str(),
                      FormatAngle(kWidestAngle, kWidestAngleDecimals).c_str());
}
