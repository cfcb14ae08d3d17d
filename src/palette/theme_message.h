#pragma once

#include <hostapi/qrui18/messages.h>
#include <hostapi/window/wnd.h>

class CQrUiTheme;

/// Tells a window of the theme that it is to be drawn with, which may be null.
inline void sendTheme(CWnd& window, CQrUiTheme* theme) {
    window.SendMessage(WM_QRUI_THEME_CHANGED, 0, reinterpret_cast<LPARAM>(theme));
}
