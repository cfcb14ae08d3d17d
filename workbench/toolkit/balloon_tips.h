#pragma once

#include "workbench/toolkit/text_notes.h"
#include "workbench/windows/window_system.h"

#include <map>
#include <string>

namespace workbench {

/// Balloons: at most one an owner, pointing at a window.
class BalloonTips {
public:
    BalloonTips(WindowSystem& windows, const TextNotes& notes)
        : m_windows(windows),
          m_notes(notes) {}

    /// Shows a balloon in place of the owner's earlier one.
    void show(HWND owner, HWND target, const std::wstring& text);
    /// Hides the owner's balloon, if it has one.
    void hide(HWND owner);
    /// The text of the owner's balloon; empty for none.
    std::wstring textOf(HWND owner) const;
    /// The window that the owner's balloon points at; null for none.
    HWND targetOf(HWND owner) const;

private:
    struct Balloon {
        HWND target;
        std::wstring text;
    };
    WindowSystem& m_windows;
    const TextNotes& m_notes;
    std::map<HWND, Balloon> m_balloons;  // by owner; those of dead owners are left out
};

}  // namespace workbench
