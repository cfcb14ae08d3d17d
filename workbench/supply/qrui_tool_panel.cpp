#include "workbench/core/host_call.h"
#include "workbench/supply/qrui_window.h"
#include "workbench/toolkit/tool_panel_widget.h"
#include "workbench/toolkit/toolkit.h"

#include <hostapi/qrui18/tool_panel.h>
#include <hostapi/qrui18/tool_panel_item.h>

#include <algorithm>

using workbench::HostCall;
using workbench::ToolPanelState;
using workbench::ToolPanelWidget;
using workbench::supply::toolkit;
using workbench::supply::windows;

namespace {

ToolPanelState& stateOf(const CQrUiToolPanel* panel) {
    return toolkit().toolPanels().of(panel);
}

}  // namespace

CQrUiToolPanel::~CQrUiToolPanel() {
    if (m_hWnd != nullptr)
        DestroyWindow();
    toolkit().toolPanels().erase(this);
}

BOOL CQrUiToolPanel::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id,
                            UINT toolkitStyle) {
    HostCall call("CQrUiToolPanel::Create", {style, parent, id, toolkitStyle});
    if (call.failed())
        return call.returns(0);
    using namespace workbench::supply;
    const bool made = createChild(*this, creationOf("CQrUiToolPanel", style, rect, parent, id),
                                  std::make_unique<ToolPanelWidget>(toolkit(), toolkitStyle));
    return call.returns(made ? 1 : 0);
}

void CQrUiToolPanel::OnLButtonClicked(UINT /*flags*/, CPoint /*point*/) {}

BOOL CQrUiToolPanel::UpdateLayout(BOOL invalidate) {
    if (auto* const widget = windows().widgetOf<ToolPanelWidget>(this)) {
        widget->layout(*windows().find(m_hWnd));
        if (invalidate != 0)
            windows().invalidate(m_hWnd);
    }
    return 1;
}

void CQrUiToolPanel::AddToolPanelItem(CQrUiToolPanelItem* item) {
    if (item != nullptr)
        stateOf(this).items.emplace_back(item);
}

int CQrUiToolPanel::GetToolPanelItemCount() const {
    return static_cast<int>(stateOf(this).items.size());
}

CQrUiToolPanelItem* CQrUiToolPanel::GetToolPanelItem(int index) const {
    const auto& items = stateOf(this).items;
    const auto place = static_cast<std::size_t>(index);
    return index < 0 || place >= items.size() ? nullptr : items[place].get();
}

CQrUiToolPanelItem* CQrUiToolPanel::GetToolPanelItem(const VxString& id) const {
    const auto& items = stateOf(this).items;
    const auto found = std::find_if(items.begin(), items.end(),
                                    [&id](const auto& item) { return item->GetID() == id; });
    return found == items.end() ? nullptr : found->get();
}

int CQrUiToolPanel::OnCreate(const CREATESTRUCT* create) {
    HostCall call("CQrUiToolPanel::OnCreate", {create});
    return call.returns(call.failed() ? -1 : 0);
}

const MessageMap& CQrUiToolPanel::GetThisMessageMap() {
    static constexpr MessageMap kMap{&CWnd::GetThisMessageMap, nullptr, 0};
    return kMap;
}

const MessageMap& CQrUiToolPanel::GetMessageMap() const {
    return GetThisMessageMap();
}
