#pragma once

#include <hostapi/export.h>
#include <hostapi/window.h>

class CQrUiToolPanel;

/// Image slot of a panel's title bar.
constexpr int kPanelImage = 1;

/// A titled block that stacks tool panels. It owns the tool panels added to it.
class VXHOST CQrUiPanel : public CWnd {
public:
    CQrUiPanel() = default;
    ~CQrUiPanel() override;

    /// Creates the window with its title bar as a child of a panel set. Returns 0 on failure.
    BOOL Create(DWORD style, const VxString& title, CWnd* panelSet);

    /// The key by which the panel is known to the host.
    const VxString& GetID() const { return m_id; }
    void SetID(const VxString& id) { m_id = id; }
    /// Puts a picture into an image slot. The panel takes it over.
    void SetImage(int slot, HBITMAP picture);
    /// Adds a tool panel below the present ones and takes it over.
    void AddPanelChild(CQrUiToolPanel* toolPanel);

    /// The user asks to open what the panel is tied to. Non-zero if something was opened.
    virtual BOOL OnActivatePanel();
    /// Adds the panel's lines to the context menu that the toolkit has begun. Returns 0 on failure.
    virtual BOOL AddContextMenuItems(CMenu& menu);

    const MessageMap& GetMessageMap() const override;

protected:
    static const MessageMap& GetThisMessageMap();

private:
    VxString m_id;
};
