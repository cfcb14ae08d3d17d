#pragma once

#include <hostapi/qrui18/quick_start_link.h>
#include <hostapi/window/gdi.h>

#include <memory>

class CQrUiPanelSet;

/// The link at the top of a panel set that has no panel on show.
class VxDaNoPanelLink {
public:
    /// Shows the link; makes it first if need be. Nothing if it can't be made.
    void show(CQrUiPanelSet& panelSet);
    /// Hides the link, if it is on show.
    void hide();
    /// Places the link, if it was made, at the top of the panel set's client area.
    void place(const CQrUiPanelSet& panelSet);
    /// Whether the link was made and has the visible style.
    bool isOnShow() const;
    /// The link's rectangle in the panel set's client coordinates; empty before it was made.
    CRect rectIn(const CQrUiPanelSet& panelSet) const;

private:
    bool make(CQrUiPanelSet& panelSet);
    void giveFont(const CQrUiPanelSet& panelSet);

    std::unique_ptr<CQrUiQuickStartLink> m_pLink;  // null until needed
    std::unique_ptr<CFont> m_pLinkFont;            // null until needed
};
