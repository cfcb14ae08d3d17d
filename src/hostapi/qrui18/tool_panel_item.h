#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>
#include <hostapi/window/geometry.h>

class CQrUiToolPanel;
struct VxToolPanelItemData;

/// Types of an item.
constexpr int kItemButton = 0;
constexpr int kItemFlyout = 1;
constexpr int kItemControl = 2;
constexpr int kItemSeparator = 3;
constexpr int kItemRowBreak = 4;
constexpr int kItemIcon = 6;  ///< A picture that can't be clicked.

/// State bits of an item.
constexpr UINT kItemDisabled = 2;
constexpr UINT kItemChecked = 16;
constexpr UINT kItemHidden = 32;

/// Kinds of an item's rectangle.
constexpr int kItemClientRect = 1;  ///< In the tool panel's client coordinates.

/// Image slots of an item.
constexpr int kItemSmallImage = 5;  ///< 16 pixels.
constexpr int kItemLargeImage = 6;  ///< 32 pixels.

/// One item of a tool panel: a button, a flyout of buttons, a wrapped control, a separator or a row
/// break. Owned by the tool panel, or by the flyout, that it was appended to.
class VXHOST CQrUiToolPanelItem {
public:
    /// Makes an item for a tool panel; it does not stand on it before it is appended.
    explicit CQrUiToolPanelItem(CQrUiToolPanel* toolPanel);
    CQrUiToolPanelItem(const CQrUiToolPanelItem&) = delete;
    CQrUiToolPanelItem& operator=(const CQrUiToolPanelItem&) = delete;
    ~CQrUiToolPanelItem();

    int GetType() const;
    void SetType(int type);
    const VxString& GetID() const;
    void SetID(const VxString& id);
    /// The text that the item's tooltip shows.
    const VxString& GetName() const;
    void SetName(const VxString& name);
    /// The `kItem...` state bits.
    UINT GetState() const;
    void SetState(UINT state);
    /// Style bits of the item's kind; 4 on a separator draws it as a gap.
    void SetStyle(UINT style);
    /// Puts a picture into an image slot. The item takes it over and gives the earlier one back.
    void SetImage(int slot, HBITMAP picture);
    /// The window of a control item, null for none. The window is not owned.
    HWND GetControl() const;
    void SetControl(HWND control);
    /// The item's rectangle of a kind: `kItemClientRect`; empty for any other.
    void GetRect(CRect& rect, int which) const;
    /// The item's top left corner in the tool panel's client coordinates.
    CPoint GetPosition() const;
    void SetPosition(CPoint position);
    /// Has the item painted again.
    void Invalidate();

    /// Appends an item to this flyout, which takes it over.
    void AppendFlyoutItem(CQrUiToolPanelItem* item);
    /// The items of this flyout in order; null if it has none.
    const CTypedPtrArray<CQrUiToolPanelItem*>* GetFlyoutItems() const;
    /// The flyout item that the flyout shows and runs, null for none.
    CQrUiToolPanelItem* GetCurrentFlyoutTool() const;
    /// Makes one of this flyout's items the current one. Returns 0 for a foreign item.
    BOOL SetCurrentFlyoutTool(CQrUiToolPanelItem* item);

    /// What the host keeps of the item; opaque to all others.
    struct Record;
    /// Owned by the host: made and ended with the item.
    Record* const m_record;
};

/// The host's menu data that an item was made from, not owned; null if none was attached.
VxToolPanelItemData* QrUiGetToolPanelItemData(const CQrUiToolPanelItem* item);
/// Attaches menu data to an item, which does not take it over.
void QrUiSetToolPanelItemData(CQrUiToolPanelItem* item, VxToolPanelItemData* data);
