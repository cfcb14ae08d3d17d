#pragma once

#include <hostapi/types.h>

/// Messages between a control and its parts. wParam: the edit field's control ID in the low 16
/// bits; lParam: the field's window.

/// A field of a strip lost or got the focus: wParam and lParam are those of the field's `WM_COMMAND`.
constexpr UINT WM_DA_EDIT_KILLFOCUS = 1733;
constexpr UINT WM_DA_EDIT_SETFOCUS = 1734;
constexpr UINT WM_DA_EDIT_ENTER = 1735;   ///< Enter was pressed in an edit field.
constexpr UINT WM_DA_EDIT_ESCAPE = 1738;  ///< Escape was pressed in an edit field.

/// Control IDs of the edit fields of slider controls.
constexpr UINT kFirstEditId = 10001;
constexpr UINT kSecondEditId = 10002;

/// What a slider tells of its position.
struct SliderMove {
    int position;  // signed
    HWND slider;

    static SliderMove from(WPARAM wParam, LPARAM lParam) {
        return {static_cast<std::int16_t>(LOWORD(wParam)), reinterpret_cast<HWND>(lParam)};
    }
};

/// A notification of a control to its parent, as `WM_COMMAND` brings it.
struct ControlNotice {
    UINT controlId;
    UINT code;
    HWND control;

    static ControlNotice from(WPARAM wParam, LPARAM lParam) {
        return {LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam)};
    }
};

/// A key that ended an entry, as `WM_DA_EDIT_ENTER` and `WM_DA_EDIT_ESCAPE` bring it.
struct EditKey {
    UINT editId;
    HWND edit;

    static EditKey from(WPARAM wParam, LPARAM lParam) {
        return {LOWORD(wParam), reinterpret_cast<HWND>(lParam)};
    }
};
