#include "nav3d/step_slider.h"

#include "nav3d/step_setting.h"
#include "controls/value_text.h"

#include "controls/doc_lock.h"
#include "controls/edit_messages.h"
#include "controls/edit_text.h"
#include "controls/row_items.h"
#include "controls/variable_access.h"

#include "core/broadcast_messages.h"
#include "core/host_objects.h"
#include "core/resources.h"
#include "core/text.h"

#include <hostapi/qrui18/balloon.h>
#include <hostapi/qrui18/messages.h>
#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/vxdb18/database.h>
#include <hostapi/zorq/documents.h>

#include <iterator>

namespace {

constexpr UINT kSliderStyle = 2;
constexpr int kPositionWithoutDatabase = 0;  // outside the range

}  // namespace

constexpr MessageEntry CVxDa3DNavStepSliderCtrl::kMessages[] = {
    {WM_CREATE, to<&CVxDa3DNavStepSliderCtrl::onCreate>},
    {WM_QRUI_POSITION, to<&CVxDa3DNavStepSliderCtrl::onSliderMoved>},
    {WM_DA_DOC_BECAME_CURRENT, to<&CVxDa3DNavStepSliderCtrl::onDocument>},
    {WM_DA_SYSVAR_CHANGED, to<&CVxDa3DNavStepSliderCtrl::onSysVarChanged>},
    {WM_DA_EDIT_ENTER, to<&CVxDa3DNavStepSliderCtrl::onEditEnter>},
    {WM_DA_EDIT_ESCAPE, to<&CVxDa3DNavStepSliderCtrl::onEditEscape>},
};
const MessageMap CVxDa3DNavStepSliderCtrl::kMessageMap{&CVxDaPanelGroupCtrl::GetThisMessageMap,
                                                       kMessages, std::size(kMessages)};

CVxDa3DNavStepSliderCtrl::CVxDa3DNavStepSliderCtrl(CVxDaControlMgr* controlMgr,
                                                   const StepSetting& setting)
    : CVxDaSliderEditPanelCtrl(controlMgr),
      m_setting(setting) {
    static_assert(hostapi::isAscendingAndUnique(kMessages));
}

CVxDa3DNavStepSizeSliderCtrl::CVxDa3DNavStepSizeSliderCtrl(CVxDaControlMgr* controlMgr)
    : CVxDa3DNavStepSliderCtrl(controlMgr, kStepSize) {}

CVxDa3DNavStepsPerSecSliderCtrl::CVxDa3DNavStepsPerSecSliderCtrl(CVxDaControlMgr* controlMgr)
    : CVxDa3DNavStepSliderCtrl(controlMgr, kStepsPerSec) {}

const MessageMap& CVxDa3DNavStepSliderCtrl::GetMessageMap() const {
    return kMessageMap;
}

LRESULT CVxDa3DNavStepSliderCtrl::onCreate(WPARAM /*unused*/, LPARAM create) {
    const auto* creation = reinterpret_cast<const CREATESTRUCT*>(create);
    if (OnCreate(creation) == -1)
        return -1;
    const CRect rect{0, 0, creation->cx, creation->cy};
    if (!m_slider.Create(WS_CHILD | WS_VISIBLE, rect, this, m_setting.sliderId, kSliderStyle))
        return -1;
    CQrUiToolPanelItem* icon = addIconItem(this, m_setting.itemId, m_setting.imageKey);
    addControlItem(this, m_slider.m_hWnd);
    CreateEditPart();
    m_slider.SetSliderRange(m_setting.lowest, m_setting.highest);
    m_edit.SetToolTipText(loadDashboardString(m_setting.strLabel));
    icon->SetName(loadDashboardString(m_setting.strLabel));
    RefreshFromDatabase(workingDatabase());
    m_slider.SetToolTipText(labelled(m_edit.GetWindowText()));
    return 0;
}

void CVxDa3DNavStepSliderCtrl::OnLButtonClicked(UINT /*flags*/, CPoint /*point*/) {
    m_edit.SetFocus();
}

VxString CVxDa3DNavStepSliderCtrl::labelled(const VxString& valueText) const {
    return loadDashboardString(m_setting.strLabel) + L":" + valueText;
}

void CVxDa3DNavStepSliderCtrl::RefreshFromDatabase(const VxDbDatabase* database) {
    if (database == nullptr) {
        m_slider.SetSliderPos(kPositionWithoutDatabase);
        m_edit.SetWindowText(m_setting.format(m_setting.valueWithoutDatabase));
        return;
    }
    const double value = (database->*m_setting.read)();
    m_slider.SetSliderPos(m_setting.toSlider(value));
    m_edit.SetWindowText(m_setting.format(value));
}

void CVxDa3DNavStepSliderCtrl::WriteVariable(double value) {
    m_settingVar = true;
    {
        const VxAxDocLock lock(workingDatabase(), kLockForWrite);
        writeVariableReal(m_setting.variable, value);
    }
    m_settingVar = false;
}

LRESULT CVxDa3DNavStepSliderCtrl::onSliderMoved(WPARAM position, LPARAM slider) {
    const SliderMove move = SliderMove::from(position, slider);
    if (move.slider != m_slider.m_hWnd)
        return 0;
    const double value = m_setting.fromSlider(move.position);
    m_edit.SetWindowText(m_setting.format(value));
    WriteVariable(value);
    // Kept as it is: the tip shows a distance whatever the field shows.
    m_slider.SetToolTipText(labelled(FormatLinear(value)));
    m_slider.ShowToolTip();
    return 0;
}

LRESULT CVxDa3DNavStepSliderCtrl::onDocument(WPARAM /*unused*/, LPARAM document) {
    if (const auto* current = reinterpret_cast<const VxApDocument*>(document))
        RefreshFromDatabase(current->database());
    return 0;
}

LRESULT CVxDa3DNavStepSliderCtrl::onSysVarChanged(WPARAM /*success*/, LPARAM name) {
    // Its own change would move the slider under the user's hand.
    if (!m_settingVar && m_setting.isRefreshedBy(reinterpret_cast<const wchar_t*>(name)))
        RefreshFromDatabase(workingDatabase());
    return 0;
}

BOOL CVxDa3DNavStepSliderCtrl::OnCommand(WPARAM wParam, LPARAM lParam) {
    QrUiHideBalloonTip(this);
    const ControlNotice notice = ControlNotice::from(wParam, lParam);
    if (notice.controlId == kFirstEditId) {
        if (notice.code == EN_KILLFOCUS)
            CommitEdit();
        else if (notice.code == EN_SETFOCUS)
            keepText();
    }
    return CVxDaSliderEditPanelCtrl::OnCommand(wParam, lParam);
}

void CVxDa3DNavStepSliderCtrl::keepText() {
    // Kept as it is: both read a distance here, whatever their field shows.
    const VxString text = m_edit.GetWindowText();
    if (parseLinear(text))
        m_savedText = text;
}

LRESULT CVxDa3DNavStepSliderCtrl::onEditEnter(WPARAM editId, LPARAM /*edit*/) {
    if (LOWORD(editId) == kFirstEditId)
        CommitEdit();
    return 0;
}

LRESULT CVxDa3DNavStepSliderCtrl::onEditEscape(WPARAM editId, LPARAM /*edit*/) {
    // The drawing's value, not the last accepted text: it may have changed meanwhile.
    if (LOWORD(editId) == kFirstEditId)
        RefreshFromDatabase(workingDatabase());
    return 0;
}

void CVxDa3DNavStepSliderCtrl::CommitEdit() {
    const VxString text = trimmed(m_edit.GetWindowText());
    if (text.empty()) {
        RefreshFromDatabase(workingDatabase());
        return;
    }
    if (text == m_savedText)
        return;
    // A text that is no number counts as 0, which is out of range.
    const double value = m_setting.parse(text).value_or(0.0);
    if (value < m_setting.least || value > m_setting.most) {
        refuseEntry();
        return;
    }
    m_slider.SetSliderPos(m_setting.toSlider(value));
    m_edit.SetWindowText(m_setting.format(value));
    WriteVariable(value);
    m_savedText = m_edit.GetWindowText();
}

void CVxDa3DNavStepSliderCtrl::refuseEntry() {
    giveBackToCorrect(m_edit, m_savedText);
    QrUiShowBalloonTip(this, &m_edit, m_setting.outOfRangeText(), 0);
}
