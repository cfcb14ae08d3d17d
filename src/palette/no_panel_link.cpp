#include "palette/no_panel_link.h"

#include "core/constants.h"
#include "core/resources.h"
#include "core/string_ids.h"

#include <hostapi/qrui18/panel_set.h>
#include <hostapi/qrui18/theme.h>

namespace {

constexpr const wchar_t* kTopic = L"LEARNDASHBOARD";
constexpr DWORD kStyle = 0x50000100;
constexpr CRect kFirstRect{0, 0, 50, 20};
constexpr int kHeight = 20;  // pixels

}  // namespace

void VxDaNoPanelLink::show(CQrUiPanelSet& panelSet) {
    if (m_pLink == nullptr && !make(panelSet))
        return;
    m_pLink->ShowWindow(SW_SHOW);
}

void VxDaNoPanelLink::hide() {
    if (isOnShow())
        m_pLink->ShowWindow(SW_HIDE);
}

bool VxDaNoPanelLink::make(CQrUiPanelSet& panelSet) {
    auto link = std::make_unique<CQrUiQuickStartLink>();
    if (link->Create(loadDashboardString(kStrNoPanelLink), kStyle, kFirstRect, &panelSet) == 0) {
        return false;
    }
    m_pLink = std::move(link);
    m_pLink->SetTopic(kTopic);
    giveFont(panelSet);
    place(panelSet);
    return true;
}

void VxDaNoPanelLink::giveFont(const CQrUiPanelSet& panelSet) {
    const CQrUiTheme* theme = panelSet.GetTheme();
    LOGFONT description;
    if (theme == nullptr || theme->GetFont(kThemeLinkFont, description) == 0)
        return;
    m_pLinkFont = std::make_unique<CFont>();
    m_pLinkFont->CreateFontIndirect(description);
    m_pLink->SendMessage(WM_SETFONT, m_pLinkFont->GetSafeHandle(), 1);
}

void VxDaNoPanelLink::place(const CQrUiPanelSet& panelSet) {
    if (m_pLink == nullptr)
        return;
    m_pLink->MoveWindow({0, 0, panelSet.GetClientRect().Width(), kHeight});
    m_pLink->SizeToContent();
}

bool VxDaNoPanelLink::isOnShow() const {
    return m_pLink != nullptr && (m_pLink->GetStyle() & WS_VISIBLE) != 0;
}

CRect VxDaNoPanelLink::rectIn(const CQrUiPanelSet& panelSet) const {
    if (m_pLink == nullptr)
        return {};
    const CRect screen = m_pLink->GetWindowRect();
    const CPoint topLeft = panelSet.ScreenToClient({screen.left, screen.top});
    return {topLeft.x, topLeft.y, topLeft.x + screen.Width(), topLeft.y + screen.Height()};
}
