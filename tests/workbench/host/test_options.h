#pragma once

#include "workbench/host/workbench.h"

#include <filesystem>
#include <utility>

namespace workbench {

/// A workbench on the libraries of the build, with a profile folder of its own.
inline WorkbenchOptions testOptions(std::filesystem::path panelFile = {}) {
    WorkbenchOptions options;
    options.libraryDir = WORKBENCH_BIN_DIR;
    options.panelFile = std::move(panelFile);
    return options;
}

}  // namespace workbench
