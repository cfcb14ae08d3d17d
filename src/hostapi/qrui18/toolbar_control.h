#pragma once

#include <hostapi/window.h>

/// The host's own toolbar controls, which may stand in other windows.

/// Makes a control of an ID as a child of `parent`, which takes it along when it ends; null for an
/// unknown ID.
CWnd* getVxToolbarControl(CWnd* parent, const CRect& rect, UINT id);
/// Lets the host handle a command of one of its controls. Returns 0 if it could not take it yet.
int HandleToolbarComboMessage(UINT id, UINT notification, WPARAM wParam, LPARAM lParam);
