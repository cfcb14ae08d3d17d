#pragma once

#include <hostapi/export.h>

#include <hostapi/types.h>
#include <hostapi/window/wnd.h>

/// A font as it is asked for.
struct LOGFONT {
    VxString faceName;
    int height = 0;  ///< Pixels, the em height.
    int weight = 400;
    bool italic = false;
};

/// A font object; its font ends with it.
class VXHOST CFont : public CObject {
public:
    CFont() = default;
    ~CFont() override;

    /// Makes the font; an earlier one of this object ends. Returns 0 on failure.
    BOOL CreateFontIndirect(const LOGFONT& font);
    /// The handle for `WM_SETFONT`, 0 without a font.
    WPARAM GetSafeHandle() const { return m_handle; }

private:
    WPARAM m_handle = 0;
};

/// Gives an icon back. Returns 0 for an unknown one.
BOOL DestroyIcon(HICON icon);
