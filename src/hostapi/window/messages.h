#pragma once

#include <hostapi/types.h>
#include <hostapi/window/geometry.h>

/// Numbers of the window system's messages, keys, styles and flags that the dashboard uses.

constexpr UINT WM_CREATE = 1;             ///< lParam: `const CREATESTRUCT*`; -1 ends the creation.
constexpr UINT WM_DESTROY = 2;            ///< The window goes; its children still live.
constexpr UINT WM_SIZE = 5;               ///< lParam: client width low, client height high.
constexpr UINT WM_ACTIVATE = 6;           ///< wParam: 1 activated.
constexpr UINT WM_SETFOCUS = 7;           ///< The keyboard came here; wParam: where from, or null.
constexpr UINT WM_KILLFOCUS = 8;          ///< The keyboard has gone; wParam: where to, or null.
constexpr UINT WM_DRAWITEM = 43;          ///< lParam: `const DRAWITEMSTRUCT*`, what to draw.
constexpr UINT WM_SETFONT = 48;           ///< wParam: the font's handle; lParam: 1 to redraw.
constexpr UINT WM_WINDOWPOSCHANGED = 71;  ///< lParam: `const WINDOWPOS*`.
constexpr UINT WM_ERASEBKGND = 20;        ///< wParam: the device context (`HDC`).
constexpr UINT WM_HELP = 77;              ///< The F1 key's message.
constexpr UINT WM_NOTIFY = 78;            ///< wParam: control ID; lParam: `NMHDR*`.
constexpr UINT WM_SETICON = 128;          ///< wParam: 0 small, 1 large; lParam: the icon.
constexpr UINT WM_KEYDOWN = 256;          ///< wParam: the key.
constexpr UINT WM_COMMAND = 273;          ///< wParam: ID low, notification high; lParam: control.
constexpr UINT WM_TIMER = 275;            ///< wParam: the timer's number.
constexpr UINT WM_MOUSEMOVE = 512;        ///< lParam: client x low, client y high, both signed.
constexpr UINT WM_LBUTTONDOWN = 513;      ///< lParam as of `WM_MOUSEMOVE`.
constexpr UINT WM_LBUTTONDBLCLK = 515;    ///< In place of the second press of a double click.
constexpr UINT WM_RBUTTONDOWN = 516;      ///< lParam as of `WM_MOUSEMOVE`.
constexpr UINT WM_MOUSELEAVE = 675;       ///< Once, after `TrackMouseEvent` has asked for it.
constexpr UINT WM_IDLEUPDATECMDUI = 867;  ///< The framework's idle update of commands.

/// Added to `WM_COMMAND` and `WM_NOTIFY` where a control gets its own notification: its message table is
/// asked first, and the parent only if that has no row.
constexpr UINT WM_REFLECT_BASE = 0xBC00;

constexpr int VK_SHIFT = 16;      ///< The Shift key.
constexpr WPARAM VK_RETURN = 13;  ///< The Enter key.
constexpr WPARAM VK_ESCAPE = 27;  ///< The Escape key.

constexpr UINT EN_SETFOCUS = 256;   ///< An edit field got the focus.
constexpr UINT EN_KILLFOCUS = 512;  ///< An edit field lost the focus.

/// What a combo tells its parent.
constexpr UINT CBN_SELCHANGE = 1;  ///< Another entry is selected now.
constexpr UINT CBN_DROPDOWN = 7;   ///< The list opens.
constexpr UINT CBN_CLOSEUP = 8;    ///< The list closed.
constexpr UINT CBN_SELENDOK = 9;   ///< An entry was chosen.

constexpr UINT BN_CLICKED = 0;       ///< A button was clicked.
constexpr UINT BM_GETCHECK = 0xF0;   ///< The answer is the check of a button: 0, 1 or 2.
constexpr UINT BM_SETCHECK = 0xF1;   ///< wParam: the check.
constexpr DWORD BS_OWNERDRAW = 0xB;  ///< The button draws itself in `CButton::DrawItem`.

constexpr UINT CB_RESETCONTENT = 331;  ///< Ends all entries of a combo.

constexpr UINT EM_SETSEL = 177;       ///< Selects from wParam to lParam; -1 is the end.
constexpr UINT EM_SCROLLCARET = 183;  ///< Scrolls the caret into view.

constexpr WPARAM ICON_SMALL = 0;
constexpr WPARAM ICON_BIG = 1;

constexpr DWORD WS_CHILD = 0x40000000;
constexpr DWORD WS_VISIBLE = 0x10000000;
constexpr DWORD WS_POPUP = 0x80000000;   ///< A top window over its parent, in screen coordinates.
constexpr DWORD WS_BORDER = 0x00800000;  ///< A thin border.

constexpr UINT SWP_NOSIZE = 0x0001;      ///< Keep the size.
constexpr UINT SWP_NOMOVE = 0x0002;      ///< Keep the place.
constexpr UINT SWP_NOZORDER = 0x0004;    ///< Keep the place in the pile of siblings.
constexpr UINT SWP_NOACTIVATE = 0x0010;  ///< Don't activate.
constexpr UINT SWP_SHOWWINDOW = 0x0040;  ///< The window is, or was, shown.
constexpr UINT SWP_HIDEWINDOW = 0x0080;  ///< The window is, or was, hidden.

constexpr int SW_HIDE = 0;
constexpr int SW_SHOW = 5;

constexpr int SM_CXSIZEFRAME = 32;  ///< Width of the frame by which a window is sized.

constexpr UINT MB_OK = 0x00;
constexpr UINT MB_YESNO = 0x04;
constexpr UINT MB_ICONSTOP = 0x10;
constexpr UINT MB_ICONWARNING = 0x30;

constexpr int IDOK = 1;
constexpr int IDYES = 6;
constexpr int IDNO = 7;

/// A message on its way from the queue to its window.
struct MSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

/// What `WM_CREATE` brings: the place in the parent's client area, in pixels.
struct CREATESTRUCT {
    int x;
    int y;
    int cx;
    int cy;
    DWORD style;
    HWND hwndParent;
};

/// What `WM_WINDOWPOSCHANGED` brings.
struct WINDOWPOS {
    HWND hwnd;
    int x;
    int y;
    int cx;
    int cy;
    UINT flags;  ///< `SWP_...`
};

/// The head of what `WM_NOTIFY` brings.
struct NMHDR {
    HWND hwndFrom;
    std::uintptr_t idFrom;
    UINT code;
};

/// Asks for messages about the mouse.
struct TRACKMOUSEEVENT {
    DWORD dwFlags;  ///< `TME_...`
    HWND hwndTrack;
};
constexpr DWORD TME_LEAVE = 2;  ///< `WM_MOUSELEAVE` once when the mouse leaves the client area.
