#pragma once

#include "workbench/windows/window_tree.h"

#include <hostapi/window.h>

#include <string>

namespace workbench {

/// The tree as text, one window a line: class, ID, name, text, rectangle, state, the widget's words.
/// `focus` is the window that the keys go to, null for none.
std::string treeText(const WindowTree& windows, HWND focus);

}  // namespace workbench
