#pragma once

#include <hostapi/window.h>

/// The host's own toolbar controls, which may stand in other windows.

/// Makes a control of an ID as a child of `parent`, which takes it along when it ends; null for an
/// unknown ID. A list follows its drawing by itself, the one that is current at the moment: neither the
/// module nor the user asks for it. The lists of blocks (5555) and of texts to find (11122) are empty,
/// since a drawing holds neither; plot, dimension, table and leader styles and coordinate systems are
/// names that a system variable keeps, without records of their own.
CWnd* getVxToolbarControl(CWnd* parent, const CRect& rect, UINT id);
/// Lets the host handle a command of one of its controls. Returns 0 if it could not take it yet.
int HandleToolbarComboMessage(UINT id, UINT notification, WPARAM wParam, LPARAM lParam);
