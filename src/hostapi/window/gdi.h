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

/// Handle of a device context: what a window draws with. The framework's.
using HDC = struct HDC__*;

/// How `PatBlt` draws: the brush covers what was there.
constexpr DWORD PATCOPY = 0x00F00021;

/// A brush of one colour.
class VXHOST CBrush : public CObject {
public:
    explicit CBrush(COLORREF colour) : m_colour(colour) {}
    COLORREF colour() const { return m_colour; }

private:
    COLORREF m_colour;
};

/// A device context.
class VXHOST CDC : public CObject {
public:
    /// The object of a handle, good until the message that brought the handle is handled; null for
    /// a stale one.
    static CDC* FromHandle(HDC context);
    /// The smallest rectangle around what may be drawn on.
    virtual CRect GetClipBox() const = 0;
    /// Selects the brush to draw with and returns the earlier one, null for none. It must live
    /// until another is selected.
    virtual CBrush* SelectObject(CBrush* brush) = 0;
    /// Fills a rectangle with the brush. Returns 0 on failure.
    virtual BOOL PatBlt(int x, int y, int width, int height, DWORD operation) = 0;
};

/// Gives an icon back. Returns 0 for an unknown one.
BOOL DestroyIcon(HICON icon);
