#pragma once

#include <hostapi/window.h>

#include <memory>
#include <string>
#include <vector>

namespace workbench {

struct Window;

/// What a toolkit class keeps for one of its windows, and how such a window handles the messages
/// that the window object's table leaves to it. Lives and dies with the window; a handler that ends
/// its own window may finish in peace.
class Widget {
public:
    virtual ~Widget() = default;
    /// Told its window once, before the window's first message.
    virtual void stand(HWND /*window*/) {}
    /// The toolkit's own handling of a message. True if it was handled; `answer` is then the answer.
    virtual bool handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                        LRESULT& answer);
    /// Whether the parent is told of the focus coming and going (`EN_SETFOCUS`, `EN_KILLFOCUS`).
    virtual bool reportsFocus() const { return false; }
    /// Whether what the user typed into it stands in it still.
    virtual bool holdsTyping(const Window& window) const;
    /// Whether the Tab key brings the keyboard here.
    virtual bool takesTab() const { return reportsFocus(); }
    /// Words for the window tree behind class and ID, such as the slider's position; may be empty.
    virtual std::string describe(const Window& window) const;
};

/// One window. Found by its handle in the window tree; a pointer to it is good until the next
/// message is sent.
struct Window {
    HWND handle = nullptr;
    CWnd* object = nullptr;          ///< not owned
    std::unique_ptr<Widget> widget;  ///< null for a plain window
    std::string className;           ///< the toolkit class, such as "CQrUiProgSliderCtrl"
    std::string name;                ///< by which scripts and the journal know it; empty for none
    HWND parent = nullptr;           ///< null: a top window
    HWND popupOf = nullptr;          ///< over whose window a popup stands; null: it is no popup
    HWND opener = nullptr;           ///< in whose handler a popup was made; null: in none
    std::vector<HWND> children;      ///< from the bottom of the pile to its top
    CRect rect;                      ///< in the parent's client area; top windows: on the screen
    DWORD style = 0;                 ///< `WS_VISIBLE` is kept up to date
    int id = 0;
    bool enabled = true;
    std::wstring text;
    WPARAM font = 0;     ///< by `WM_SETFONT`; 0: the system's
    bool dying = false;  ///< `WM_DESTROY` was sent

    bool hasVisibleStyle() const { return (style & WS_VISIBLE) != 0; }
};

}  // namespace workbench
