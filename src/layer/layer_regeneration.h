#pragma once

#include <hostapi/vxdb18/database.h>

class CWnd;

/// Enables the host's main window and gives it the keyboard.
void enterMainWindow();
/// Has the drawing drawn anew after a change of layers, with the keyboard in the host's main window
/// meanwhile and in a window of the dashboard afterwards.
void regenerateLayers(const VxDbObjectIdArray& layers, CWnd& focusAfterwards);
