#pragma once

#include <hostapi/window.h>

#include <cstdint>

namespace workbench {

/// Input messages beside those that the host's interface declares.

constexpr UINT kContextMenuMessage = 123;     ///< lParam: client point.
constexpr UINT kCharMessage = 258;            ///< wParam: the character.
constexpr UINT kLeftButtonDown = 513;         ///< lParam: client point.
constexpr UINT kLeftButtonUp = 514;           ///< lParam: client point.
constexpr UINT kRightButtonUp = 517;          ///< lParam: client point.
constexpr UINT kLeftButtonDoubleClick = 515;  ///< lParam: client point.
constexpr UINT kMouseWheel = 522;             ///< wParam: turn in the high word; lParam: point.
constexpr UINT kMouseLeave = 675;             ///< The mouse left the window.

constexpr WPARAM kLeftButtonHeld = 1;  ///< In wParam of mouse messages.
constexpr WPARAM kShiftHeld = 4;       ///< In wParam of mouse messages.
constexpr WPARAM kControlHeld = 8;     ///< In wParam of mouse messages.

constexpr int kWheelStep = 120;  ///< One notch of the wheel.

constexpr WPARAM kKeyTab = 9;
constexpr WPARAM kKeyPageUp = 33;
constexpr WPARAM kKeyPageDown = 34;
constexpr WPARAM kKeyEnd = 35;
constexpr WPARAM kKeyHome = 36;
constexpr WPARAM kKeyLeft = 37;
constexpr WPARAM kKeyUp = 38;
constexpr WPARAM kKeyRight = 39;
constexpr WPARAM kKeyDown = 40;
constexpr WPARAM kKeyDelete = 46;
constexpr WPARAM kKeyF2 = 113;

constexpr wchar_t kCharSelectAll = 1;  ///< Ctrl+A.
constexpr wchar_t kCharBackspace = 8;

/// A client point as a mouse message's lParam: both coordinates in 16 bits, signed.
constexpr LPARAM packPoint(CPoint point) {
    return static_cast<LPARAM>(
        MAKELONG(static_cast<UINT>(point.x) & 0xffffU, static_cast<UINT>(point.y) & 0xffffU));
}
/// The client point of a mouse message.
constexpr CPoint unpackPoint(LPARAM lParam) {
    const auto bits = static_cast<std::uintptr_t>(lParam);
    return {static_cast<std::int16_t>(LOWORD(bits)), static_cast<std::int16_t>(HIWORD(bits))};
}

}  // namespace workbench
