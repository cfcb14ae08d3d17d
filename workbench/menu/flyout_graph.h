#pragma once

#include <cstddef>
#include <vector>

namespace workbench {

/// For each tool panel, by position, the positions of the tool panels that its flyouts open.
using FlyoutGraph = std::vector<std::vector<std::size_t>>;

/// A way through flyouts that leads back to where it began, first and last position the same;
/// empty if there is none. The first one in the order of the panels and their flyouts is found.
std::vector<std::size_t> findFlyoutCycle(const FlyoutGraph& graph);

}  // namespace workbench
