#include "palette/palette.h"

#include "core/flag_scope.h"
#include "core/message_table.h"
#include "core/theme.h"
#include "palette/dashboard.h"
#include "palette/panel_set.h"

#include <hostapi/qrui18/messages.h>

#include <cstddef>
#include <utility>
#include <vector>

namespace {

constexpr UINT kPanelSetId = 1;

CSize windowSize(const CWnd& window) {
    const CRect rect = window.GetWindowRect();
    return {rect.Width(), rect.Height()};
}

/// The size that a panel set reports.
CSize reportedSize(WPARAM wParam) {
    return {static_cast<int>(LOWORD(wParam)), static_cast<int>(HIWORD(wParam))};
}

bool floats(const CQrUiPaletteSet* paletteSet) {
    return paletteSet != nullptr && paletteSet->IsFloating() != 0;
}

}  // namespace

constexpr MessageEntry CVxDaPalette::kMessages[] = {
    {WM_CREATE, to<&CVxDaPalette::onCreate>},
    {WM_SIZE, to<&CVxDaPalette::onSize>},
    {WM_QRUI_POSITION, to<&CVxDaPalette::onContentSize>},
};

const MessageMap CVxDaPalette::kMessageMap =
    makeMessageMap(&CQrUiPalette::GetThisMessageMap, kMessages);

const MessageMap& CVxDaPalette::GetMessageMap() const {
    return kMessageMap;
}

CVxDaPalette::CVxDaPalette() {
    makePanelSet();
}

CVxDaPalette::~CVxDaPalette() = default;

void CVxDaPalette::makePanelSet() {
    m_pPanelSet = std::make_unique<CVxDaPanelSet>();
    m_pPanelSet->SetTheme(dashboardTheme());
}

void CVxDaPalette::createPanelSetWindow(const CRect& rect) {
    m_pPanelSet->Create(WS_CHILD | WS_VISIBLE, rect, this, kPanelSetId);
}

void CVxDaPalette::replacePanelSet() {
    // Asked again while the old set's windows go: the new one is on its way.
    if (m_pPanelSet == nullptr || m_replacing)
        return;
    const FlagScope replacing(m_replacing);
    m_pPanelSet->leaveService();
    freeAfterCall(std::move(m_pPanelSet));
    makePanelSet();
    createPanelSetWindow(GetClientRect());
}

bool CVxDaPalette::hasVisiblePanel() const {
    return m_pPanelSet != nullptr && m_pPanelSet->HasVisiblePanel() != 0;
}

bool CVxDaPalette::GetMinimumSize(CSize& size) {
    const ModuleCall call;
    size = {};
    if (!hasVisiblePanel())
        return false;
    CSize least = windowSize(*m_pPanelSet);
    size.cy = least.cy;
    m_pPanelSet->GetMinimumSize(least);
    size.cx = least.cx;
    if (floats(GetPaletteSet()))
        size.cx += GetSystemMetrics(SM_CXSIZEFRAME);
    return true;
}

bool CVxDaPalette::GetMaximumSize(CSize& size) {
    const ModuleCall call;
    const CQrUiPaletteSet* paletteSet = GetPaletteSet();
    if (paletteSet != nullptr && paletteSet->Anchored() != 0)
        return false;
    size.cx = -1;
    if (!hasVisiblePanel())
        return false;
    size.cy = windowSize(*m_pPanelSet).cy;
    if (floats(paletteSet))
        size.cy += paletteSet->GetNonClientSize().cy;
    return true;
}

bool CVxDaPalette::CanFrameworkTakeFocus() {
    const ModuleCall call;
    if (m_pPanelSet == nullptr)
        return true;
    const std::vector<HWND>& controls = m_pPanelSet->controlWindows();
    for (std::size_t i = 0; i < controls.size(); ++i) {
        // A control such as a combo with its list open needs the focus.
        if (::SendMessage(controls[i], WM_QRUI_KEEP_FOCUS, 0, 0) != 0)
            return false;
    }
    return true;
}

LRESULT CVxDaPalette::onCreate(WPARAM /*unused*/, LPARAM /*create*/) {
    const LRESULT answer = Default();
    // Kept as it is: this is the palette's place on the screen, because the first size message
    // moves the panel set into the client area anyway.
    createPanelSetWindow(GetWindowRect());
    return answer;
}

LRESULT CVxDaPalette::onSize(WPARAM /*kind*/, LPARAM /*size*/) {
    const LRESULT answer = Default();
    if (m_pPanelSet != nullptr && IsWindow(m_pPanelSet->m_hWnd)) {
        m_pPanelSet->MoveWindow(GetClientRect());
    }
    return answer;
}

LRESULT CVxDaPalette::onContentSize(WPARAM size, LPARAM /*unused*/) {
    if (auto* dashboard = dynamic_cast<CVxDaDashboard*>(GetParent())) {
        dashboard->resizeToContent(reportedSize(size));
    }
    return 0;
}
