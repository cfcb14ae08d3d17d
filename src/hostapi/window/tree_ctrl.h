#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>
#include <hostapi/window/image_list.h>
#include <hostapi/window/wnd.h>

/// Handle of an item of a tree. It goes stale when its item goes and is never given out again.
using HTREEITEM = struct HTREEITEM__*;

constexpr DWORD TVS_HASBUTTONS = 0x0001;       ///< Items with children have a button to open them.
constexpr DWORD TVS_HASLINES = 0x0002;         ///< Lines join items.
constexpr DWORD TVS_LINESATROOT = 0x0004;      ///< The root has line and button too.
constexpr DWORD TVS_EDITLABELS = 0x0008;       ///< Labels can be edited.
constexpr DWORD TVS_DISABLEDRAGDROP = 0x0010;  ///< Items can't be dragged.
constexpr DWORD TVS_SHOWSELALWAYS = 0x0020;    ///< The selection shows without the focus too.
constexpr DWORD TVS_FULLROWSELECT = 0x1000;    ///< The selection is as wide as the tree.

constexpr int TVSIL_NORMAL = 0;   ///< The pictures of the items.
constexpr UINT TVE_EXPAND = 0x2;  ///< Open an item.

/// The place before all items, and the one behind all children.
inline HTREEITEM const TVI_ROOT = reinterpret_cast<HTREEITEM>(~std::uintptr_t{0xFFFF});
inline HTREEITEM const TVI_LAST = reinterpret_cast<HTREEITEM>(~std::uintptr_t{0xFFFD});

/// Where a point of a tree is.
constexpr UINT TVHT_ONITEMICON = 0x0002;
constexpr UINT TVHT_ONITEMLABEL = 0x0004;
constexpr UINT TVHT_ONITEMSTATEICON = 0x0040;
constexpr UINT TVHT_TOLEFT = 0x0800;  ///< Left of the client area.

/// The user has ended the editing of a label (`NMTVDISPINFO`). The answer says whether the tree takes
/// the new text.
constexpr UINT TVN_ENDLABELEDIT = static_cast<UINT>(-460);

/// What `TVN_ENDLABELEDIT` brings.
struct NMTVDISPINFO {
    NMHDR hdr;
    HTREEITEM item;
    const wchar_t* text;  ///< The new text; null if the editing was cancelled.
};

/// A tree of items with pictures. Arrow keys move in it, F2 or a call edits a label: Enter or the loss
/// of the focus ends that with the text, Escape without.
class VXHOST CTreeCtrl : public CWnd {
public:
    /// Creates the window. Returns 0 on failure.
    BOOL Create(DWORD style, const CRect& rect, CWnd* parent, UINT id);
    /// Sets the list of pictures (`TVSIL_NORMAL`), which stays its owner's and must live as long as the
    /// tree shows it. Returns the earlier one's handle.
    HIMAGELIST SetImageList(CImageList* list, int kind);

    /// Inserts an item below a parent (`TVI_ROOT` for the top) behind another or `TVI_LAST`. Returns
    /// null on failure.
    HTREEITEM InsertItem(const wchar_t* text, int image, int selectedImage, HTREEITEM parent,
                         HTREEITEM insertAfter);
    /// Ends an item with those below it. If the selection was among them it goes to none. Returns 0 on
    /// failure.
    BOOL DeleteItem(HTREEITEM item);
    BOOL DeleteAllItems();
    /// Sorts the direct children of an item by their texts, by the user's language and without regard to
    /// case. Returns 0 on failure.
    BOOL SortChildren(HTREEITEM parent);
    /// Opens an item (`TVE_EXPAND`). Returns 0 if it has no children.
    BOOL Expand(HTREEITEM item, UINT code);
    /// Selects an item without a notification, null for none. Returns 0 for a stale one.
    BOOL SelectItem(HTREEITEM item);
    /// Opens what is above an item and scrolls it into view.
    BOOL EnsureVisible(HTREEITEM item);
    /// Lets the user edit a label. The editor, null on failure.
    CWnd* EditLabel(HTREEITEM item);

    /// Null where there is none.
    HTREEITEM GetRootItem() const;
    HTREEITEM GetChildItem(HTREEITEM item) const;
    HTREEITEM GetNextSiblingItem(HTREEITEM item) const;
    HTREEITEM GetSelectedItem() const;
    /// The item at the top of the window, and the one that shows below another, also beyond the window's
    /// edge.
    HTREEITEM GetFirstVisibleItem() const;
    HTREEITEM GetNextVisibleItem(HTREEITEM item) const;
    /// Empty for a stale item.
    VxString GetItemText(HTREEITEM item) const;
    /// The height of a row in pixels.
    int GetItemHeight() const;
    /// The item at a point of the client area and what of it is there (`TVHT_...`); null beside all.
    HTREEITEM HitTest(CPoint point, UINT* where) const;
};
