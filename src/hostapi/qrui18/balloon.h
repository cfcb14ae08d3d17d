#pragma once

#include <hostapi/window/wnd.h>

/// Shows a balloon that points at `target`, in place of the owner's earlier one. `flags` is 0.
void QrUiShowBalloonTip(CWnd* owner, CWnd* target, const VxString& text, UINT flags);
/// Hides the owner's balloon, if it has one.
void QrUiHideBalloonTip(CWnd* owner);
