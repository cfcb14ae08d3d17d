#pragma once

#include <hostapi/export.h>
#include <hostapi/window.h>
#include <hostapi/xmldom.h>

class CQrUiPanel;
class CQrUiTheme;

/// A scrolling stack of panels. It lists the panels to be laid out, in order; it does not own them.
class VXHOST CQrUiPanelSet : public CWnd {
public:
    CQrUiPanelSet() = default;
    ~CQrUiPanelSet() override;

    /// Creates the window. Returns 0 on failure.
    BOOL Create(DWORD style, const CRect& rect, CWnd* parent, UINT id);

    /// Sets the theme, not owned, that the set and its panels are drawn with.
    void SetTheme(CQrUiTheme* theme) { m_theme = theme; }
    CQrUiTheme* GetTheme() const { return m_theme; }

    /// Appends a panel to the list.
    void AddPanel(CQrUiPanel* panel);
    /// Takes a panel off the list; an unknown one is ignored.
    void RemovePanel(CQrUiPanel* panel);
    /// Whether a panel is on the list.
    BOOL HasPanel(const CQrUiPanel* panel) const;
    /// The number of panels on the list.
    int GetPanelCount() const;
    /// Whether a panel on the list has the visible style.
    BOOL HasVisiblePanel() const;

    /// Reads the set's own state from a node; 0 on failure.
    virtual BOOL Load(IUnknown* storageNode);
    /// Writes the set's own state below a node; 0 on failure.
    virtual BOOL Save(IUnknown* storageNode);
    /// The smallest size in pixels that a set of the given size can be laid out in.
    virtual void GetMinimumSize(CSize& size) const;
    /// Stacks the panels of the list and sets the window's height to their sum.
    virtual void UpdateLayout();
    /// A panel was rolled up to its title. Returns 1 if the layout was renewed.
    virtual BOOL OnPanelCollapsed(CQrUiPanel* panel);
    /// A panel was rolled down. Returns 1 if the layout was renewed.
    virtual BOOL OnPanelExpanded(CQrUiPanel* panel);

    const MessageMap& GetMessageMap() const override;

protected:
    static const MessageMap& GetThisMessageMap();

private:
    CQrUiTheme* m_theme = nullptr;  // not owned
};
