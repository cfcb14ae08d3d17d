#pragma once

#include <filesystem>

namespace workbench {

/// The folder of the program's own file, where modules and libraries lie beside it.
std::filesystem::path defaultLibraryDir();
/// The example menu, next to the program or in the source tree it was built from; empty if neither
/// is there.
std::filesystem::path defaultPanelFile();
/// The example drawing, found likewise.
std::filesystem::path defaultDrawing();

}  // namespace workbench
