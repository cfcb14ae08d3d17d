#include "nav3d/camera_point.h"

#include "controls/current_view.h"
#include "controls/edit_messages.h"
#include "controls/row_items.h"
#include "controls/value_text.h"
#include "controls/view_state.h"
#include "core/broadcast_messages.h"
#include "core/event_names.h"
#include "core/message_table.h"
#include "core/message_values.h"
#include "core/resources.h"
#include "core/string_ids.h"
#include "core/text.h"
#include "core/theme.h"
#include "nav3d/move_view_point.h"
#include "nav3d/navigation_module.h"
#include "nav3d/white_background.h"

#include <hostapi/qrui18/balloon.h>
#include <hostapi/qrui18/input_edit.h>
#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/zorq/views.h>

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>

/// What the two controls differ in.
struct CameraPointSetting {
    UINT containerId;
    const wchar_t* imageKey;
    const wchar_t* itemId;
    UINT strFieldTips[3];
    UINT strItemName;
    bool isEye;
    const char* navigationExport;
};

namespace {

constexpr CameraPointSetting kEye{
    5008, L"RCDATA_3DNAV_POINTTRIPLETPANEL1", L"TPB_3DNAV_POINTTRIPLET1", {1274, 1275, 1276}, 1235,
    true, "navUpdateCameraPosition"};
constexpr CameraPointSetting kTarget{5009,
                                     L"RCDATA_3DNAV_POINTTRIPLETPANEL2",
                                     L"TPB_3DNAV_POINTTRIPLET2",
                                     {1277, 1278, 1279},
                                     1236,
                                     false,
                                     "navUpdateCameraTarget"};

constexpr UINT kStrPaperSpace = 1232;
constexpr UINT kStrNoCoordinate = 1234;

constexpr DWORD kContainerStyle = 0x50010000;  // child, visible, tab stop
constexpr COLORREF kWhite = 0xffffff;

/// Which coordinate a field is for.
struct FieldRow {
    UINT id;
    double VxGePoint3d::*coordinate;
};
constexpr FieldRow kFields[] = {
    {kFieldXId, &VxGePoint3d::x},
    {kFieldYId, &VxGePoint3d::y},
    {kFieldZId, &VxGePoint3d::z},
};

const FieldRow* findRow(UINT id) {
    const auto* found = std::find_if(std::begin(kFields), std::end(kFields),
                                     [id](const FieldRow& row) { return row.id == id; });
    return found == std::end(kFields) ? nullptr : found;
}

/// What makes the controls read the view again.
constexpr std::wstring_view kRefreshingVariables[] = {L"CVPORT", L"TILEMODE", L"LUPREC", L"LUNITS"};
constexpr EventNames kRefreshing{kRefreshingVariables};

}  // namespace

constexpr MessageEntry CVxDa3DNavCameraPointCtrl::kMessages[] = {
    {WM_CREATE, to<&CVxDa3DNavCameraPointCtrl::onCreate>},
    {WM_ERASEBKGND, to<&CVxDa3DNavCameraPointCtrl::onEraseBackground>},
    {WM_DA_DOC_BECAME_CURRENT, to<&CVxDa3DNavCameraPointCtrl::onDocument>},
    {WM_DA_SYSVAR_CHANGED, to<&CVxDa3DNavCameraPointCtrl::onSysVarChanged>},
    {WM_DA_EDIT_KILLFOCUS, to<&CVxDa3DNavCameraPointCtrl::onFieldLeft>},
    {WM_DA_EDIT_SETFOCUS, to<&CVxDa3DNavCameraPointCtrl::onFieldEntered>},
    {WM_DA_EDIT_ENTER, to<&CVxDa3DNavCameraPointCtrl::onEditEnter>},
    {WM_DA_VIEW_CHANGED, to<&CVxDa3DNavCameraPointCtrl::onViewChanged>},
    {WM_DA_EDIT_ESCAPE, to<&CVxDa3DNavCameraPointCtrl::onEditEscape>},
};
const MessageMap CVxDa3DNavCameraPointCtrl::kMessageMap =
    makeMessageMap(&CVxDaPanelGroupCtrl::GetThisMessageMap, kMessages);

CVxDa3DNavCameraPointCtrl::CVxDa3DNavCameraPointCtrl(const CameraPointSetting& setting)
    : m_setting(setting) {}

CVxDa3DNavCameraEyePointCtrl::CVxDa3DNavCameraEyePointCtrl(CVxDaControlMgr* /*controlMgr*/)
    : CVxDa3DNavCameraPointCtrl(kEye) {}

CVxDa3DNavCameraTargetPointCtrl::CVxDa3DNavCameraTargetPointCtrl(CVxDaControlMgr* /*controlMgr*/)
    : CVxDa3DNavCameraPointCtrl(kTarget) {}

const MessageMap& CVxDa3DNavCameraPointCtrl::GetMessageMap() const {
    return kMessageMap;
}

LRESULT CVxDa3DNavCameraPointCtrl::onCreate(WPARAM /*unused*/, LPARAM create) {
    if (OnCreate(creationFrom(create)) == -1)
        return -1;
    if (!m_fields.Create(kContainerStyle, GetClientRect(), this, m_setting.containerId))
        return -1;
    createCoordinateFields(&m_fields);
    CQrUiToolPanelItem* icon = addIconItem(this, m_setting.itemId, m_setting.imageKey);
    addControlItem(this, m_fields.m_hWnd);
    if (m_toolTip.Create(this))
        m_toolTip.SendMessage(TTM_ACTIVATE, 1);
    dressFields();
    icon->SetName(loadDashboardString(m_setting.strItemName));
    RefreshFromView();
    return 0;
}

void CVxDa3DNavCameraPointCtrl::dressFields() {
    for (std::size_t i = 0; i < std::size(kFields); ++i) {
        auto* field = dynamic_cast<CQrUiInputEditCtrl*>(findField(kFields[i].id));
        if (field == nullptr)
            continue;
        field->SetBkNorm(kWhite);
        field->SetFont(dashboardFont());
        m_toolTip.AddTool(field, loadDashboardString(m_setting.strFieldTips[i]));
    }
}

CWnd* CVxDa3DNavCameraPointCtrl::findField(UINT id) const {
    for (int i = 0; i < m_fields.GetItemCount(); ++i) {
        CWnd* field = m_fields.GetItem(i);
        if (field != nullptr && static_cast<UINT>(field->GetDlgCtrlID()) == id)
            return field;
    }
    return nullptr;
}

/// The field for a coordinate; null for another's ID.
CWnd* CVxDa3DNavCameraPointCtrl::findCoordinateField(UINT id) const {
    return findRow(id) == nullptr ? nullptr : findField(id);
}

BOOL CVxDa3DNavCameraPointCtrl::PreTranslateMessage(MSG* msg) {
    const ModuleCall call;
    if (m_toolTip.m_hWnd != nullptr)
        m_toolTip.SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(msg));
    return CVxDaPanelGroupCtrl::PreTranslateMessage(msg);
}

void CVxDa3DNavCameraPointCtrl::OnLButtonClicked(UINT /*flags*/, CPoint /*point*/) {
    if (CWnd* first = findField(kFieldXId))
        first->SetFocus();
}

LRESULT CVxDa3DNavCameraPointCtrl::onEraseBackground(WPARAM context, LPARAM /*unused*/) {
    fillWhite(drawingContextFrom(context));
    return 1;
}

LRESULT CVxDa3DNavCameraPointCtrl::onDocument(WPARAM /*unused*/, LPARAM /*document*/) {
    RefreshFromView();
    return 0;
}

LRESULT CVxDa3DNavCameraPointCtrl::onSysVarChanged(WPARAM /*success*/, LPARAM name) {
    if (!m_applying && kRefreshing.contains(eventNameFrom(name)))
        RefreshFromView();
    return 0;
}

LRESULT CVxDa3DNavCameraPointCtrl::onViewChanged(WPARAM /*unused*/, LPARAM /*unusedToo*/) {
    // Its own change would overwrite the field that the user just left.
    if (!m_applying)
        RefreshFromView();
    return 0;
}

void CVxDa3DNavCameraPointCtrl::RefreshFromView() {
    const std::optional<int> viewport = currentViewportNumber();
    if (!viewport)
        return;
    const CurrentView view(*viewport);
    if (view.get() == nullptr)
        return;
    m_point = m_setting.isEye ? view.get()->eyePosition() : view.get()->target();
    for (const FieldRow& row : kFields) {
        if (CWnd* field = findField(row.id))
            field->SetWindowText(FormatLinear(m_point.*row.coordinate));
    }
}

LRESULT CVxDa3DNavCameraPointCtrl::onFieldEntered(WPARAM command, LPARAM edit) {
    const ControlNotice notice = ControlNotice::from(command, edit);
    const CWnd* field = findCoordinateField(notice.controlId);
    if (field == nullptr || notice.code != EN_SETFOCUS)
        return 0;
    const VxString text = field->GetWindowText();
    if (parseLinear(text))
        m_accepted.accept(text);
    return 0;
}

LRESULT CVxDa3DNavCameraPointCtrl::onFieldLeft(WPARAM command, LPARAM edit) {
    const ControlNotice notice = ControlNotice::from(command, edit);
    if (notice.code == EN_KILLFOCUS)
        CommitField(notice.controlId);
    return 0;
}

LRESULT CVxDa3DNavCameraPointCtrl::onEditEnter(WPARAM editId, LPARAM edit) {
    CommitField(EditKey::from(editId, edit).editId);
    return 0;
}

LRESULT CVxDa3DNavCameraPointCtrl::onEditEscape(WPARAM editId, LPARAM edit) {
    if (CWnd* field = findCoordinateField(EditKey::from(editId, edit).editId))
        m_accepted.restore(*field);
    return 0;
}

void CVxDa3DNavCameraPointCtrl::CommitField(UINT id) {
    CWnd* field = findCoordinateField(id);
    if (field == nullptr)
        return;
    const VxString typed = field->GetWindowText();
    if (m_accepted.is(typed))
        return;
    const VxString text = trimmed(typed);
    if (text.empty())
        m_accepted.restore(*field);
    else if (IsPaperSpaceViewport())
        forbid(*field, kStrPaperSpace);
    else if (IsViewportLocked())
        forbid(*field, kStrViewportLocked);
    else if (!m_accepted.is(text))
        applyText(*field, id, text);
}

void CVxDa3DNavCameraPointCtrl::forbid(CWnd& field, UINT strReason) {
    QrUiShowBalloonTip(this, &field, loadDashboardString(strReason), 0);
    m_accepted.restore(field);
}

void CVxDa3DNavCameraPointCtrl::applyText(CWnd& field, UINT id, const VxString& text) {
    const std::optional<double> value = parseLinear(text);
    QrUiHideBalloonTip(this);
    if (!value) {
        m_accepted.giveBack(field);
        QrUiShowBalloonTip(this, &field, loadDashboardString(kStrNoCoordinate), 0);
        return;
    }
    m_point.*findRow(id)->coordinate = *value;
    ApplyPoint();
    // The field keeps what was typed until the next refresh.
    m_accepted.accept(FormatLinear(*value));
}

void CVxDa3DNavCameraPointCtrl::ApplyPoint() {
    m_applying = true;
    CTool* tool = nullptr;
    if (OrbitInProgress(tool)) {
        HINSTANCE module = findNavigationModule();
        // Kept as it is: the mark stays, so that the controls don't follow a view that they could
        // not move, until a document becomes current.
        if (module == nullptr)
            return;
        using Update = void (*)(CTool*, double, double, double);
        if (auto* update = findNavigationExport<Update>(module, m_setting.navigationExport))
            update(tool, m_point.x, m_point.y, m_point.z);
    } else {
        MoveViewPoint(m_point, m_setting.isEye);
    }
    m_applying = false;
}
