#pragma once

#include <hostapi/types.h>

namespace workbench {

/// Hands a key that means nothing to a control on. Tab goes to the next edit field of the palette
/// set; all others go to the command line.
void passKeyOn(WPARAM key, LPARAM details);

/// The edit field behind a window in the order of the window tree, the first again behind the last,
/// among those of its palette set that take input; null for none.
HWND nextField(HWND from);

}  // namespace workbench
