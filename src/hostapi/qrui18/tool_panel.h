#pragma once

#include <hostapi/export.h>
#include <hostapi/window.h>

class CQrUiToolPanelItem;

/// A window that lays items out in rows. It owns its items. A plain one belongs to its panel once it
/// was added there (`CQrUiPanel::AddPanelChild`); others belong to whoever made them.
class VXHOST CQrUiToolPanel : public CWnd {
public:
    CQrUiToolPanel() = default;
    ~CQrUiToolPanel() override;

    /// Creates the window. `rect` is in the parent's client coordinates. Toolkit style 2 indents the
    /// rows of a panel's own tool panel below the panel's image. Returns 0 on failure.
    BOOL Create(DWORD style, const CRect& rect, CWnd* parent, UINT id, UINT toolkitStyle);

    /// The left button was released over an item that is not handled by the panel, or over the
    /// panel itself; `point` is in client coordinates. Only panels that stand inside another tool
    /// panel get this call.
    virtual void OnLButtonClicked(UINT flags, CPoint point);
    /// Places the items in rows, control items' windows too; paints again if `invalidate`.
    /// Returns 1.
    virtual BOOL UpdateLayout(BOOL invalidate);

    /// Appends an item, which the panel takes over.
    void AddToolPanelItem(CQrUiToolPanelItem* item);
    int GetToolPanelItemCount() const;
    /// The item at an index, null outside.
    CQrUiToolPanelItem* GetToolPanelItem(int index) const;
    /// The first item with an ID, null for none.
    CQrUiToolPanelItem* GetToolPanelItem(const VxString& id) const;

    const MessageMap& GetMessageMap() const override;

protected:
    static const MessageMap& GetThisMessageMap();
    /// The toolkit's creation step, run first by a derived class's creation handler. -1 on failure.
    int OnCreate(const CREATESTRUCT* create);
};
