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
/// Asks a control whether it shows an icon of its own, before a click on that is handed to it
/// (`CQrUiToolPanel::OnLButtonClicked`).
constexpr UINT WM_QRUI_HAS_ICON = 1567;
/// Asks the controls around the keyboard focus, as `WM_QRUI_KEEP_FOCUS` asks all, on behalf of a
/// list that dropped down; non-zero keeps the focus where it is.
constexpr UINT WM_QRUI_LIST_DROPPED = 0x7101;
/// Asks a control in a tool panel, before it is laid out first, whether it shares its row with other
/// items; 0 gives it a row of its own.
constexpr UINT WM_QRUI_ROW_QUERY = 1571;
/// An item was clicked, sent by its tool panel to the panel. lParam: `CQrUiToolPanelItem*`.
constexpr UINT WM_QRUI_ITEM_CLICKED = 1605;
