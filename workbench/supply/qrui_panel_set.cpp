#include "workbench/core/host_call.h"
#include "workbench/supply/qrui_window.h"
#include "workbench/toolkit/panel_set_widget.h"
#include "workbench/toolkit/toolkit.h"

#include <hostapi/qrui18/panel.h>
#include <hostapi/qrui18/panel_set.h>

#include <algorithm>

using workbench::HostCall;
using workbench::PanelSetState;
using workbench::PanelSetWidget;
using workbench::supply::toolkit;
using workbench::supply::windows;

namespace {

PanelSetState& stateOf(const CQrUiPanelSet* set) {
    return toolkit().panelSets().of(set);
}

}  // namespace

CQrUiPanelSet::~CQrUiPanelSet() {
    if (m_hWnd != nullptr)
        DestroyWindow();
    toolkit().panelSets().erase(this);
}

BOOL CQrUiPanelSet::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    HostCall call("CQrUiPanelSet::Create", {style, parent, id});
    if (call.failed())
        return call.returns(0);
    using namespace workbench::supply;
    const bool made = createChild(*this, creationOf("CQrUiPanelSet", style, rect, parent, id),
                                  std::make_unique<PanelSetWidget>(toolkit()));
    return call.returns(made ? 1 : 0);
}

void CQrUiPanelSet::AddPanel(CQrUiPanel* panel) {
    if (panel != nullptr)
        stateOf(this).panels.push_back(panel);
}

void CQrUiPanelSet::RemovePanel(CQrUiPanel* panel) {
    std::erase(stateOf(this).panels, panel);
}

BOOL CQrUiPanelSet::HasPanel(const CQrUiPanel* panel) const {
    const std::vector<CQrUiPanel*>& panels = stateOf(this).panels;
    return std::find(panels.begin(), panels.end(), panel) != panels.end() ? 1 : 0;
}

int CQrUiPanelSet::GetPanelCount() const {
    return static_cast<int>(stateOf(this).panels.size());
}

BOOL CQrUiPanelSet::HasVisiblePanel() const {
    const std::vector<CQrUiPanel*>& panels = stateOf(this).panels;
    const bool has = std::any_of(panels.begin(), panels.end(), [](const CQrUiPanel* panel) {
        return (panel->GetStyle() & WS_VISIBLE) != 0;
    });
    return has ? 1 : 0;
}

BOOL CQrUiPanelSet::Load(IUnknown* storageNode) {
    HostCall call("CQrUiPanelSet::Load", {storageNode});
    return call.returns(storageNode == nullptr || call.failed() ? 0 : 1);
}

BOOL CQrUiPanelSet::Save(IUnknown* storageNode) {
    HostCall call("CQrUiPanelSet::Save", {storageNode});
    return call.returns(storageNode == nullptr || call.failed() ? 0 : 1);
}

void CQrUiPanelSet::GetMinimumSize(CSize& size) const {
    size.cx = PanelSetWidget::kMinimumWidth;
    size.cy = PanelSetWidget::kEmptyHeight;
}

void CQrUiPanelSet::UpdateLayout() {
    if (auto* const widget = windows().widgetOf<PanelSetWidget>(this))
        widget->layout(*windows().find(m_hWnd));
}

BOOL CQrUiPanelSet::OnPanelCollapsed(CQrUiPanel* /*panel*/) {
    UpdateLayout();
    return 1;
}

BOOL CQrUiPanelSet::OnPanelExpanded(CQrUiPanel* /*panel*/) {
    UpdateLayout();
    return 1;
}

const MessageMap& CQrUiPanelSet::GetThisMessageMap() {
    static constexpr MessageMap kMap{&CWnd::GetThisMessageMap, nullptr, 0};
    return kMap;
}

const MessageMap& CQrUiPanelSet::GetMessageMap() const {
    return GetThisMessageMap();
}
