#pragma once

#include "workbench/toolkit/rest_timer.h"
#include "workbench/toolkit/text_notes.h"
#include "workbench/windows/window_system.h"

#include <optional>
#include <string>

namespace workbench {

/// Balloons: one at a time, of an owner, pointing at a window. It goes when its owner hides it, with
/// the user's next key or click, when the keyboard goes elsewhere, when the window that it points at
/// can no longer be seen, and after a while.
class BalloonTips {
public:
    static constexpr UINT kLongestMs = 10'000;  ///< Then it goes by itself.

    BalloonTips(WindowSystem& windows, const TextNotes& notes);
    BalloonTips(const BalloonTips&) = delete;
    BalloonTips& operator=(const BalloonTips&) = delete;
    ~BalloonTips();

    /// Shows a balloon in place of the earlier one.
    void show(HWND owner, HWND target, const std::wstring& text);
    /// Hides the owner's balloon, if it has one.
    void hide(HWND owner);
    /// Hides the balloon whose ever it is: the user has turned to something else.
    void dismiss();
    /// Hides the balloon if the window that it points at can no longer be seen.
    void review();
    /// The text of the owner's balloon; empty for none.
    std::wstring textOf(HWND owner) const;
    /// The window that the owner's balloon points at; null for none.
    HWND targetOf(HWND owner) const;
    bool isShown() const { return m_balloon.has_value(); }

private:
    struct Balloon {
        HWND owner;
        HWND target;
        HWND keyboard;  // the window that may have the keyboard meanwhile
        std::wstring text;
    };

    void keyboardMoved();

    WindowSystem& m_windows;
    const TextNotes& m_notes;
    std::optional<Balloon> m_balloon;  // nothing: none is on show
    RestTimer m_stay;
};

}  // namespace workbench
