#pragma once

namespace workbench {

/// How the host's own lists of layers go by the current filter; for as long as the program runs.
struct LayerDisplay {
    bool byFilter = false;  ///< only the layers that the current filter shows are listed
    bool inverted = false;  ///< what the filter leaves out is listed instead
};

}  // namespace workbench
