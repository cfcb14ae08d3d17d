#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>
#include <hostapi/window/geometry.h>
#include <hostapi/window/message_map.h>
#include <hostapi/window/messages.h>

class CFont;
class CFrameWnd;

/// Root of the framework's objects.
class VXHOST CObject {
public:
    CObject() = default;
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
    virtual ~CObject() = default;
};

/// A window object. It and its window are two things: the window lives from a derived class's
/// `Create` to `DestroyWindow`, the object as its owner wills. An object that ends while its window
/// lives takes the window along. Destroying a window destroys its children first notifying each
/// with `WM_DESTROY`, parents before children; afterwards `m_hWnd` is null.
class VXHOST CWnd : public CObject {
public:
    CWnd() = default;
    ~CWnd() override;

    /// The window, null before creation and after destruction. Written by the framework only.
    HWND m_hWnd = nullptr;

    /// The object of a window, null for a stale handle.
    static CWnd* FromHandle(HWND window);
    /// The object of the window with the keyboard focus, null for none.
    static CWnd* GetFocus();

    /// The object of the window that the user works in, null for none.
    static CWnd* GetActiveWindow();
    /// For `SetWindowPos`: behind all windows that are to stay on top, and before all others.
    static const CWnd wndNoTopMost;

    /// Creates a window of a window class by its name, such as "Static". `rect` is within the parent's
    /// client area, for `WS_POPUP` on the screen. Returns 0 on failure.
    BOOL CreateEx(DWORD exStyle, const wchar_t* className, const wchar_t* text, DWORD style,
                  const CRect& rect, CWnd* parent, UINT id);
    /// Ends the window. Returns 0 if there is none.
    BOOL DestroyWindow();

    /// Sends a message and returns its answer; 0 without a window.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    /// Queues a message; it is dropped if the window dies first. Returns 0 without a window.
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

    /// Gives the window the keyboard focus: the old one gets `EN_KILLFOCUS` reported to its parent
    /// first, then the new one `EN_SETFOCUS`, if they are edit fields; then the old one gets
    /// `WM_KILLFOCUS` and the new one `WM_SETFOCUS`. The focus has moved before any of these. A disabled or hidden window
    /// takes no focus.
    void SetFocus();

    /// Starts, or starts again, a timer of this window; `WM_TIMER` comes every `milliseconds`.
    void SetTimer(UINT timer, UINT milliseconds);
    /// Stops a timer of this window; an unknown number is ignored.
    void KillTimer(UINT timer);

    /// The parent, null for a top window.
    CWnd* GetParent() const;
    /// The nearest frame above this window, null for none.
    CFrameWnd* GetParentFrame() const;
    /// The ID that the window was created with.
    int GetDlgCtrlID() const;
    /// The window's style bits as they are now.
    DWORD GetStyle() const;
    /// Whether the window and all its parents have the visible style.
    BOOL IsWindowVisible() const;

    /// Shows (`SW_SHOW`) or hides (`SW_HIDE`); a change sends `WM_WINDOWPOSCHANGED`.
    void ShowWindow(int command);
    /// Whether the window itself takes input; its parents aren't asked.
    BOOL IsWindowEnabled() const;
    /// Enables or disables input. If the window or one below it has the keyboard focus when it is
    /// disabled, the focus goes to no window. Whichever of them was disabled, the parent of a field
    /// that had the focus is told of that (`EN_KILLFOCUS`) if the field holds what its user typed; a
    /// text that was set is no entry, and goes unsaid.
    void EnableWindow(BOOL enable);

    /// The window's text.
    VxString GetWindowText() const;
    /// Sets the window's text.
    void SetWindowText(const VxString& text);

    /// Sets the font of the text, which the font's owner keeps; draws anew if `redraw`.
    void SetFont(CFont* font, BOOL redraw = 1);
    /// The object of the font that was set, null for none.
    CFont* GetFont() const;
    /// The window with its borders, in screen coordinates; empty without a window.
    CRect GetWindowRect() const;
    /// The client area with its origin at (0, 0); empty without a window.
    CRect GetClientRect() const;
    /// From screen to client coordinates.
    CPoint ScreenToClient(CPoint point) const;
    /// From client to screen coordinates.
    CPoint ClientToScreen(CPoint point) const;
    /// Moves and sizes within the parent's client area and repaints.
    void MoveWindow(const CRect& rect);
    /// Moves and sizes within the parent's client area as far as the `SWP_...` flags allow. A
    /// negative width or height counts as 0.
    void SetWindowPos(int x, int y, int cx, int cy, UINT flags);
    /// The same, and places the window in the pile of windows, unless `SWP_NOZORDER` says no.
    void SetWindowPos(const CWnd* insertAfter, int x, int y, int cx, int cy, UINT flags);
    /// Has the client area painted again, its background erased first if `erase`.
    void Invalidate(BOOL erase = 1);

    /// The message table of the object's class.
    virtual const MessageMap& GetMessageMap() const;
    /// Looks at a message before it is translated and dispatched: called on the focused window,
    /// then on its parents, until one returns non-zero, which consumes the message.
    virtual BOOL PreTranslateMessage(MSG* msg);
    /// Handles a message: the message table, then the window's own handling.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// Handles `WM_COMMAND`: searches the table's rows of it. Non-zero if one was found.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);

protected:
    /// The table of this class, for the chain of derived ones.
    static const MessageMap& GetThisMessageMap();
    /// Lets the base class handle the message that is being handled now, and returns its answer.
    LRESULT Default();
};

/// Whether a handle is that of a living window.
BOOL IsWindow(HWND window);
/// Sends a message to a window by its handle; 0 for a stale one.
LRESULT SendMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
/// The state of a key when the message being handled was sent; negative while it is down.
short GetKeyState(int key);
/// A measure of the window system in pixels (`SM_...`).
int GetSystemMetrics(int index);
/// Asks for messages about the mouse (`TME_...`). Returns 0 for a stale window.
BOOL TrackMouseEvent(TRACKMOUSEEVENT* request);
/// Sets the standard arrow as the mouse cursor.
void SetArrowCursor();
/// Shows the mouse cursor that says that work is under way, while it lives.
class VXHOST CWaitCursor {
public:
    CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
    ~CWaitCursor();
};
/// Compares two texts by the user's language: below, equal to or above 0.
int Collate(const VxString& left, const VxString& right);
/// Compares two texts by the user's language, ignoring case: below, equal to or above 0.
int CollateNoCase(const VxString& left, const VxString& right);
