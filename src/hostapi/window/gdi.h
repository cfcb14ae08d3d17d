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

/// A bitmap object; its bitmap ends with it.
class VXHOST CBitmap : public CObject {
public:
    CBitmap() = default;
    ~CBitmap() override;

    /// The bitmap, null for none. Written by the framework only.
    HBITMAP m_hBitmap = nullptr;

    /// Loads a bitmap by its number, as `LoadString` does a text. Returns 0 if there is none.
    BOOL LoadBitmap(UINT number);
    /// The colour of a pixel; `CLR_INVALID` outside and without a bitmap.
    COLORREF GetPixel(int x, int y) const;
};

/// No colour.
constexpr COLORREF CLR_INVALID = 0xFFFFFFFF;

/// A corner of a gradient: place and colour, each channel from 0 to 0xFFFF.
struct TRIVERTEX {
    int x;
    int y;
    std::uint16_t Red;
    std::uint16_t Green;
    std::uint16_t Blue;
    std::uint16_t Alpha;
};

/// The corners of a gradient's rectangle, as indexes.
struct GRADIENT_RECT {
    UINT UpperLeft;
    UINT LowerRight;
};

constexpr UINT GRADIENT_FILL_RECT_H = 0;  ///< The colour changes from left to right.
constexpr int TRANSPARENT = 1;            ///< Text is drawn on what is there.
constexpr UINT DT_VCENTER = 0x0004;       ///< Text in the middle between top and bottom.
constexpr UINT DT_SINGLELINE = 0x0020;    ///< Text on one line.

constexpr int COLOR_WINDOWTEXT = 8;      ///< Text of windows.
constexpr int COLOR_HIGHLIGHT = 13;      ///< What is selected.
constexpr int COLOR_HIGHLIGHTTEXT = 14;  ///< Text on what is selected.
/// A colour of the user's theme (`COLOR_...`).
COLORREF GetSysColor(int index);

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
    /// Fills a rectangle with a colour.
    virtual void FillSolidRect(const CRect& rect, COLORREF colour) = 0;
    /// Fills rectangles with gradients between their corners. Returns 0 on failure.
    virtual BOOL GradientFill(const TRIVERTEX* vertices, UINT vertexCount,
                              const GRADIENT_RECT* rects, UINT rectCount, UINT mode) = 0;
    /// Draws a bitmap, leaving its pixels of one colour out. Returns 0 on failure.
    virtual BOOL TransparentBlt(int x, int y, int width, int height, const CBitmap& source,
                                COLORREF transparent) = 0;
    /// Selects the font to write with and returns the earlier one, null for none. It must live until
    /// another is selected.
    virtual CFont* SelectObject(CFont* font) = 0;
    /// Sets the colour of texts and returns the earlier one.
    virtual COLORREF SetTextColor(COLORREF colour) = 0;
    /// Sets what is behind texts (`TRANSPARENT`) and returns the earlier mode.
    virtual int SetBkMode(int mode) = 0;
    /// Writes a text into a rectangle (`DT_...`). Returns the height of the text.
    virtual int DrawText(const VxString& text, const CRect& rect, UINT format) = 0;
};

/// Gives an icon back. Returns 0 for an unknown one.
BOOL DestroyIcon(HICON icon);
