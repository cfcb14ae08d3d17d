#pragma once

namespace workbench::desktop {

/// Has the mirrored windows and items tell assistive programs their roles, names, values and ranges.
/// To be called once, before the first window is shown.
void installAccessibility();

}  // namespace workbench::desktop
