#pragma once

#include <hostapi/types.h>
#include <hostapi/window/gdi.h>
#include <hostapi/window/messages.h>

#include <cwchar>
#include <string_view>

class VxApDocument;

/// What the parameters of messages hold.

/// The record that `WM_CREATE` brings in lParam.
inline const CREATESTRUCT* creationFrom(LPARAM lParam) {
    return reinterpret_cast<const CREATESTRUCT*>(lParam);
}

/// What `WM_ERASEBKGND` brings in wParam to draw on.
inline HDC drawingContextFrom(WPARAM wParam) {
    return reinterpret_cast<HDC>(wParam);
}

/// The point in a window's client area that a message about the mouse brings in lParam.
inline CPoint pointFrom(LPARAM lParam) {
    const auto value = static_cast<std::uintptr_t>(lParam);
    return {static_cast<std::int16_t>(LOWORD(value)), static_cast<std::int16_t>(HIWORD(value))};
}

/// The variable or command that a broadcast names in lParam; empty for none. Good during the message
/// only.
inline std::wstring_view eventNameFrom(LPARAM lParam) {
    const auto* name = reinterpret_cast<const wchar_t*>(lParam);
    return name == nullptr ? std::wstring_view() : std::wstring_view(name);
}

/// Whether a broadcast names this variable or command, spelt just so. Cheaper than asking its name.
inline bool isEventNamed(LPARAM lParam, const wchar_t* name) {
    const auto* given = reinterpret_cast<const wchar_t*>(lParam);
    return given != nullptr && std::wcscmp(given, name) == 0;
}

/// The document that a broadcast names in lParam; null for none.
inline const VxApDocument* documentFrom(LPARAM lParam) {
    return reinterpret_cast<const VxApDocument*>(lParam);
}
