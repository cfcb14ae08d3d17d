#pragma once

#include "workbench/toolbar/toolbar_list.h"

#include <hostapi/window.h>

namespace workbench {

class Toolkit;
class WindowSystem;

/// Makes the window of a toolbar control as a child of `parent`, with which its object ends; null for
/// an unknown ID and without a parent's window.
CWnd* makeToolbarWindow(Toolkit& toolkit, const ToolbarScope& scope, CWnd* parent,
                        const CRect& rect, UINT id);
/// Does what a notification of such a control asks for: fills its list when it opens, takes a choice
/// or a click into effect. False for another window.
bool handleToolbarNotice(WindowSystem& windows, const ToolbarScope& scope, HWND control, UINT id,
                         UINT notification);

}  // namespace workbench
