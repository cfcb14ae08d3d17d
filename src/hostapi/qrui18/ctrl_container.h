#pragma once

#include <hostapi/export.h>
#include <hostapi/window.h>

/// A strip of controls side by side that share its width evenly. The controls end with its window.
class VXHOST CQrUiCtrlContainer : public CWnd {
public:
    CQrUiCtrlContainer() = default;
    ~CQrUiCtrlContainer() override;

    /// Creates the window. Returns 0 on failure.
    BOOL Create(DWORD style, const CRect& rect, CWnd* parent, UINT id);
    /// Appends a control whose parent is this container, and takes it over.
    void AddItem(CWnd* control);
    int GetItemCount() const;
    /// The control at an index, in the order of adding; null outside.
    CWnd* GetItem(int index) const;
    /// Pixels between two controls.
    void SetMargin(int pixels);
};
