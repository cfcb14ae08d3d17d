#pragma once

#include "workbench/toolkit/rest_timer.h"
#include "workbench/toolkit/text_notes.h"
#include "workbench/windows/window_system.h"

#include <hostapi/window.h>

#include <functional>
#include <string>

namespace workbench {

/// Tooltips: a text is shown when the mouse has rested over its window for a while.
class ToolTips {
public:
    ToolTips(WindowSystem& windows, const TextNotes& notes);
    ToolTips(const ToolTips&) = delete;
    ToolTips& operator=(const ToolTips&) = delete;

    /// The mouse moved over a part of a window that has a text; an empty one has no tooltip. The
    /// wait begins anew if window or text differ from before.
    void mouseOver(HWND window, const std::wstring& text);
    /// The mouse moved over a window whose text a module's tooltip shows: another one's ends.
    void mouseOverRelayed(HWND window);
    /// Shows a text of a window at once, in place of the one on show.
    void show(HWND window, const std::wstring& text);
    /// The mouse went elsewhere, or a button was pressed.
    void hide();
    /// The text on show; empty for none.
    const std::wstring& shown() const { return m_shown; }
    /// The window whose text is on show, or is about to be; null for none.
    HWND over() const { return m_over; }

    /// Shows a text over a window to a user; an empty one ends what is on show. Null shows none.
    using Presenter = std::function<void(HWND window, const std::wstring& text)>;
    void setPresenter(Presenter presenter) { m_presenter = std::move(presenter); }

private:
    void showNow();

    WindowSystem& m_windows;
    const TextNotes& m_notes;
    RestTimer m_rest;
    HWND m_over = nullptr;  // null: over nothing with a text
    std::wstring m_text;
    std::wstring m_shown;
    Presenter m_presenter;
};

}  // namespace workbench
