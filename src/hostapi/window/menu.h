#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>
#include <hostapi/window/wnd.h>

constexpr UINT MF_STRING = 0x0000;
constexpr UINT MF_BYCOMMAND = 0x0000;
constexpr UINT MF_ENABLED = 0x0000;
constexpr UINT MF_GRAYED = 0x0001;
constexpr UINT MF_CHECKED = 0x0008;
constexpr UINT MF_POPUP = 0x0010;
constexpr UINT MF_SEPARATOR = 0x0800;
constexpr UINT MF_BYPOSITION = 0x0400;

/// A menu object; it owns its menu until `DestroyMenu`, the end of the object, or until the menu
/// is destroyed along with a menu that it was appended to as a popup.
class VXHOST CMenu : public CObject {
public:
    CMenu() = default;
    ~CMenu() override;

    /// The menu, null for none. Written by the framework only.
    HMENU m_hMenu = nullptr;

    /// Makes a new, empty popup menu. Returns 0 on failure.
    BOOL CreatePopupMenu();
    /// Ends the menu with its popups. Returns 0 if there is none.
    BOOL DestroyMenu();
    /// Whether the object holds a living menu.
    BOOL IsMenu() const;
    /// Appends a line. `item` is its command, or for `MF_POPUP` the popup's handle.
    BOOL AppendMenu(UINT flags, std::uintptr_t item = 0, const wchar_t* text = nullptr);
    /// The number of lines.
    int GetMenuItemCount() const;
    /// The `MF_...` bits of the line at a position, -1 if there is none.
    int GetMenuStateAt(int position) const;
    /// Enables (`MF_ENABLED`) or grays (`MF_GRAYED`) the line of a command, wherever in the menu or its
    /// popups, or with `MF_BYPOSITION` at a position. Returns the bits that it had, -1 without such a line.
    int EnableMenuItem(UINT item, UINT flags);
    /// Opens the menu at a point of the screen and lets the user choose; a choice comes to `owner` as
    /// `WM_COMMAND` before this returns. `flags` are 0. Returns 0 if it couldn't be opened.
    BOOL TrackPopupMenu(UINT flags, int x, int y, CWnd* owner);
    /// Removes the line at a position; a popup that it held stays alive.
    BOOL RemoveMenuAt(int position);
};
