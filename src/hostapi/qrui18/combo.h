#pragma once

#include <hostapi/export.h>
#include <hostapi/window.h>

/// An entry of a combo's list. Derived records may say more; the combo hands them out as they were
/// given.
struct VXHOST QRUI_COMBO_CTRL_ITEM {
    virtual ~QRUI_COMBO_CTRL_ITEM() = default;

    VxString text;
    HBITMAP image = nullptr;  ///< 16 pixels, owned by the combo; null for none.
    BOOL separator = 0;       ///< A line between entries; it can't be chosen.
};

/// A field with a list that drops down. It reports `CBN_...` to its parent by `WM_COMMAND`.
class VXHOST CQrUiComboCtrl : public CWnd {
public:
    /// Creates the window. The height of `rect` is that of the dropped list. Returns 0 on failure.
    BOOL Create(DWORD style, const CRect& rect, CWnd* parent, UINT id);
    /// Appends an entry, which the combo takes over with its image. Returns its index.
    int AddItem(QRUI_COMBO_CTRL_ITEM* item);
    int GetCount() const;
    /// The entry at an index, null outside. Owned by the combo.
    QRUI_COMBO_CTRL_ITEM* GetItem(int index) const;
    /// Ends an entry with its image; the selection goes with it if it was the selected one, and stays
    /// on its entry otherwise. Returns the number of entries left, -1 for an index outside.
    int DeleteItem(int index);
    /// Ends all entries; nothing is selected then. `CB_RESETCONTENT` does the same.
    void ResetContent();
    /// The index of the selected entry, -1 for none.
    int GetCurSel() const;
    /// Selects an entry without a notification; -1 selects none.
    void SetCurSel(int index);
    /// The text shown while the mouse rests over the combo.
    void SetToolTipText(const VxString& text);
};
