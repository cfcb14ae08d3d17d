#include "workbench/startup/default_paths.h"

#include <initializer_list>

namespace workbench {

namespace {

std::filesystem::path findExample(const char* name) {
    const std::filesystem::path program = defaultLibraryDir();
    for (const std::filesystem::path& folder :
         {program / "examples", program.parent_path() / "share" / "vxdashboard" / "examples",
          std::filesystem::path(PROJECT_SOURCE_ROOT) / "examples"}) {
        std::error_code ignored;
        if (std::filesystem::exists(folder / name, ignored))
            return folder / name;
    }
    return {};
}

}  // namespace

std::filesystem::path defaultLibraryDir() {
    std::error_code ignored;
    return std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path();
}

std::filesystem::path defaultPanelFile() {
    return findExample("panels.json");
}

std::filesystem::path defaultDrawing() {
    return findExample("house.json");
}

}  // namespace workbench
