#include "nav3d/step_slider.h"

#include "controls/doc_lock.h"
#include "controls/value_text.h"
#include "controls/variable_access.h"
#include "core/broadcast_messages.h"
#include "core/host_objects.h"
#include "core/message_table.h"
#include "core/message_values.h"
#include "core/resources.h"
#include "core/text.h"
#include "nav3d/step_setting.h"

#include <hostapi/qrui18/balloon.h>
#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/vxdb18/database.h>
#include <hostapi/zorq/documents.h>

#include <string_view>

namespace {

constexpr int kPositionWithoutDatabase = 0;  // outside the range

}  // namespace

constexpr MessageEntry CVxDa3DNavStepSliderCtrl::kMessages[] = {
    {WM_CREATE, to<&CVxDa3DNavStepSliderCtrl::onCreate>},
    {WM_DA_DOC_BECAME_CURRENT, to<&CVxDa3DNavStepSliderCtrl::onDocument>},
    {WM_DA_SYSVAR_CHANGED, to<&CVxDa3DNavStepSliderCtrl::onSysVarChanged>},
};
const MessageMap CVxDa3DNavStepSliderCtrl::kMessageMap =
    makeMessageMap(&CVxDaSliderEditPanelCtrl::GetThisMessageMap, kMessages);

CVxDa3DNavStepSliderCtrl::CVxDa3DNavStepSliderCtrl(CVxDaControlMgr* controlMgr,
                                                   const StepSetting& setting)
    : CVxDaSliderEditPanelCtrl(controlMgr),
      m_setting(setting) {}

CVxDa3DNavStepSizeSliderCtrl::CVxDa3DNavStepSizeSliderCtrl(CVxDaControlMgr* controlMgr)
    : CVxDa3DNavStepSliderCtrl(controlMgr, kStepSize) {}

CVxDa3DNavStepsPerSecSliderCtrl::CVxDa3DNavStepsPerSecSliderCtrl(CVxDaControlMgr* controlMgr)
    : CVxDa3DNavStepSliderCtrl(controlMgr, kStepsPerSec) {}

const MessageMap& CVxDa3DNavStepSliderCtrl::GetMessageMap() const {
    return kMessageMap;
}

LRESULT CVxDa3DNavStepSliderCtrl::onCreate(WPARAM /*unused*/, LPARAM create) {
    CQrUiToolPanelItem* icon = createRow(creationFrom(create), m_setting.row);
    if (icon == nullptr)
        return -1;
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

void CVxDa3DNavStepSliderCtrl::sliderMoved(int position) {
    const double value = m_setting.fromSlider(position);
    m_edit.SetWindowText(m_setting.format(value));
    WriteVariable(value);
    // Kept as it is: the tip shows a distance whatever the field shows.
    m_slider.SetToolTipText(labelled(FormatLinear(value)));
    m_slider.ShowToolTip();
}

LRESULT CVxDa3DNavStepSliderCtrl::onDocument(WPARAM /*unused*/, LPARAM document) {
    if (const VxApDocument* current = documentFrom(document))
        RefreshFromDatabase(current->database());
    return 0;
}

LRESULT CVxDa3DNavStepSliderCtrl::onSysVarChanged(WPARAM /*success*/, LPARAM name) {
    // Its own change would move the slider under the user's hand.
    if (m_settingVar)
        return 0;
    const std::wstring_view variable = eventNameFrom(name);
    if (m_setting.refreshing.contains(variable) || m_setting.refreshingAnyCase.contains(variable))
        RefreshFromDatabase(workingDatabase());
    return 0;
}

BOOL CVxDa3DNavStepSliderCtrl::OnCommand(WPARAM wParam, LPARAM lParam) {
    QrUiHideBalloonTip(this);
    return CVxDaSliderEditPanelCtrl::OnCommand(wParam, lParam);
}

void CVxDa3DNavStepSliderCtrl::fieldEntered(CQrUiInputEditCtrl& field) {
    // Kept as it is: both read a distance here, whatever their field shows.
    const VxString text = field.GetWindowText();
    if (parseLinear(text))
        m_accepted.accept(text);
}

void CVxDa3DNavStepSliderCtrl::restoreEdit(CQrUiInputEditCtrl& /*field*/) {
    // The drawing's value, not the last accepted text: it may have changed meanwhile.
    RefreshFromDatabase(workingDatabase());
}

void CVxDa3DNavStepSliderCtrl::commitEdit(CQrUiInputEditCtrl& field) {
    const VxString text = trimmed(field.GetWindowText());
    if (text.empty()) {
        RefreshFromDatabase(workingDatabase());
        return;
    }
    if (m_accepted.is(text))
        return;
    // A text that is no number counts as 0, which is out of range.
    const double value = m_setting.parse(text).value_or(0.0);
    if (value < m_setting.least || value > m_setting.most) {
        m_accepted.giveBack(field);
        QrUiShowBalloonTip(this, &field, m_setting.outOfRangeText(), 0);
        return;
    }
    m_slider.SetSliderPos(m_setting.toSlider(value));
    field.SetWindowText(m_setting.format(value));
    WriteVariable(value);
    m_accepted.accept(field.GetWindowText());
}
