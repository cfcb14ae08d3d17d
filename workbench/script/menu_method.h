#pragma once

#include "workbench/script/arguments.h"
#include "workbench/script/session.h"

#include <hostapi/types.h>
#include <hostapi/window/geometry.h>

namespace workbench::script {

/// The method `:menu([line])` of what has a context menu at a point of a window. Results without a
/// line: the lines, the marks of those that are disabled, and of those that are checked.
int runMenuMethod(Session& session, Arguments& arguments, HWND window, CPoint point);

}  // namespace workbench::script
