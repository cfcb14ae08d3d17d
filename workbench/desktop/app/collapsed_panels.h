#pragma once

#include <string>
#include <vector>

namespace workbench {
class Toolkit;
}

namespace workbench::desktop {

/// The IDs of the panels that are rolled up, in the order of the window tree.
std::vector<std::wstring> collapsedPanels(Toolkit& toolkit);
/// Rolls the panels of these IDs up, and all others down. An ID that there is no panel of is ignored.
void collapsePanels(Toolkit& toolkit, const std::vector<std::wstring>& ids);

}  // namespace workbench::desktop
