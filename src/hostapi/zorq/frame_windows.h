#pragma once

#include <hostapi/window.h>

/// The main frame, null while the host has none.
CFrameWnd* vxedGetZorqFrame();
/// The drawing view, null for none.
CWnd* vxedGetZorqDwgView();
/// The docked command line, null for none.
CWnd* vxedGetZorqDockCmdLine();
