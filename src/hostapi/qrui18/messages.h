#pragma once

#include <hostapi/types.h>

/// The toolkit's own messages.

/// A slider's new position (wParam, low 16 bits; lParam: the slider's window), sent to its parent
/// at each step of a gesture. Also the panel set's size (wParam: width low, height high; lParam 0),
/// posted to the palette.
constexpr UINT WM_QRUI_POSITION = 1534;
/// The theme changed. wParam 0, lParam: `CQrUiTheme*`.
constexpr UINT WM_QRUI_THEME_CHANGED = 1565;
/// Asks a control whether it needs the keyboard focus at the moment; non-zero keeps it.
constexpr UINT WM_QRUI_KEEP_FOCUS = 1566;
/// Asks a control whether it shows an icon of its own.
constexpr UINT WM_QRUI_HAS_ICON = 1567;
/// Asks, as `WM_QRUI_KEEP_FOCUS` does, on behalf of a list that dropped down.
constexpr UINT WM_QRUI_LIST_DROPPED = 0x7101;
/// A further query of the toolkit to a control in a tool panel; 1 takes part in the row's layout.
constexpr UINT WM_QRUI_ROW_QUERY = 1571;
/// An item was clicked, sent by its tool panel to the panel. lParam: `CQrUiToolPanelItem*`.
constexpr UINT WM_QRUI_ITEM_CLICKED = 1605;
