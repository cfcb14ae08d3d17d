#include "workbench/base/text.h"
#include "workbench/core/host_call.h"
#include "workbench/supply/qrui_window.h"
#include "workbench/toolkit/panel_widget.h"
#include "workbench/toolkit/toolkit.h"

#include <hostapi/qrui18/panel.h>
#include <hostapi/qrui18/tool_panel.h>

using workbench::HostCall;
using workbench::PanelState;
using workbench::supply::toolkit;
using workbench::supply::windows;

CQrUiPanel::~CQrUiPanel() {
    if (m_hWnd != nullptr)
        DestroyWindow();
    if (const PanelState* const state = toolkit().panels().find(this); state != nullptr) {
        for (const auto& image : state->images)
            toolkit().pictures().release(image.second);
    }
    toolkit().panels().erase(this);
}

BOOL CQrUiPanel::Create(DWORD style, const VxString& title, CWnd* panelSet) {
    HostCall call("CQrUiPanel::Create", {style, title, panelSet});
    if (call.failed())
        return call.returns(0);
    CRect rect = workbench::supply::clientOf(panelSet);
    rect.bottom = rect.top + workbench::PanelWidget::kTitleHeight;
    auto creation = workbench::supply::creationOf("CQrUiPanel", style, rect, panelSet, 0);
    creation.text = title;
    if (!workbench::supply::createChild(*this, std::move(creation),
                                        std::make_unique<workbench::PanelWidget>(toolkit())))
        return call.returns(0);
    windows().setName(m_hWnd, workbench::toUtf8(m_id));
    return call.returns(1);
}

void CQrUiPanel::SetImage(int slot, HBITMAP picture) {
    HBITMAP& present = toolkit().panels().of(this).images[slot];
    toolkit().pictures().release(present);
    present = picture;
    windows().invalidate(m_hWnd);
}

void CQrUiPanel::AddPanelChild(CQrUiToolPanel* toolPanel) {
    if (toolPanel == nullptr)
        return;
    const bool collapsed = toolkit().panels().of(this).collapsed;
    toolkit().panels().of(this).toolPanels.emplace_back(toolPanel);
    if (collapsed)
        toolPanel->ShowWindow(SW_HIDE);
}

BOOL CQrUiPanel::OnActivatePanel() {
    return 0;
}

BOOL CQrUiPanel::AddContextMenuItems(CMenu& /*menu*/) {
    return 1;
}

const MessageMap& CQrUiPanel::GetThisMessageMap() {
    static constexpr MessageMap kMap{&CWnd::GetThisMessageMap, nullptr, 0};
    return kMap;
}

const MessageMap& CQrUiPanel::GetMessageMap() const {
    return GetThisMessageMap();
}
