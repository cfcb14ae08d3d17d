#pragma once

#include <hostapi/export.h>
#include <hostapi/window.h>

class CQrUiPaletteSet;

/// One page of a palette set.
class VXHOST CQrUiPalette : public CWnd {
public:
    /// Creates the window as a child of a palette set. Returns 0 on failure.
    BOOL Create(CWnd* paletteSet);
    /// The palette set that took the palette over, null before.
    CQrUiPaletteSet* GetPaletteSet() const;

    /// The smallest size of the page in pixels; false leaves the limit to the toolkit.
    virtual bool GetMinimumSize(CSize& size);
    /// The largest size of the page in pixels, -1 for no limit; false leaves it to the toolkit.
    virtual bool GetMaximumSize(CSize& size);
    /// Whether the toolkit may take the keyboard focus from the palette set now.
    virtual bool CanFrameworkTakeFocus();

    const MessageMap& GetMessageMap() const override;

protected:
    static const MessageMap& GetThisMessageMap();
};
