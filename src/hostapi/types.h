#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// The plain types that all host libraries share. Text is wide; `wchar_t` may have 16 or 32 bits.

using BOOL = int;                ///< 0 or non-zero.
using UINT = std::uint32_t;      ///< Message numbers, window IDs, flags.
using DWORD = std::uint32_t;     ///< Styles, error codes.
using WPARAM = std::uintptr_t;   ///< First message argument: numbers and pointers.
using LPARAM = std::intptr_t;    ///< Second message argument: numbers and pointers.
using LRESULT = std::intptr_t;   ///< Answer to a message.
using HRESULT = std::int32_t;    ///< Status of the XML node interface; negative is a failure.
using COLORREF = std::uint32_t;  ///< 0x00BBGGRR.

/// Handle of a window. It goes stale when its window dies and is never given out again.
using HWND = struct HWND__*;
/// Handle of a menu, owned by the menu object that it is attached to.
using HMENU = struct HMENU__*;
/// Handle of an icon; given back with `DestroyIcon`.
using HICON = struct HICON__*;
/// Handle of a picture. Who takes it over stands with each call.
using HBITMAP = struct HBITMAP__*;
/// Handle of a loaded library or module.
using HINSTANCE = struct HINSTANCE__*;

/// The host's string.
using VxString = std::wstring;
/// The host's array of strings.
using CStringArray = std::vector<VxString>;
/// The host's array of pointers; whether it owns what they point at stands with each use.
template <class Pointer>
using CTypedPtrArray = std::vector<Pointer>;

/// The low 16 bits of a message argument.
constexpr UINT LOWORD(std::uintptr_t value) noexcept {
    return static_cast<UINT>(value & 0xffffU);
}
/// The second 16 bits of a message argument.
constexpr UINT HIWORD(std::uintptr_t value) noexcept {
    return static_cast<UINT>((value >> 16U) & 0xffffU);
}
/// A message argument made of two 16-bit halves.
constexpr UINT MAKELONG(UINT low, UINT high) noexcept {
    return (low & 0xffffU) | ((high & 0xffffU) << 16U);
}

/// A globally unique identifier in its four customary fields.
struct GUID {
    std::uint32_t Data1;
    std::uint16_t Data2;
    std::uint16_t Data3;
    std::uint8_t Data4[8];
    friend bool operator==(const GUID&, const GUID&) = default;
};

namespace Zorq {
/// Status of a database or document call; 0 is success.
using ErrorStatus = std::int32_t;
/// Success.
constexpr ErrorStatus eOk = 0;
}  // namespace Zorq
