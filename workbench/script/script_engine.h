#pragma once

#include "workbench/host/workbench.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

/// How a script ended.
struct ScriptResult {
    bool passed = false;
    std::string complaint;  ///< "FILE:LINE: reason" of a failed check or an error; empty if passed
};

/// Runs a script file against a workbench. `arguments` become the global list `arg`, with the file's
/// name as element 0. Throws InputError if the file can't be read.
ScriptResult runScriptFile(Workbench& workbench, const std::filesystem::path& file,
                           const std::vector<std::string>& arguments = {});
/// The same from a text; `place` stands for the file's name.
ScriptResult runScriptText(Workbench& workbench, std::string_view text, const std::string& place,
                           const std::vector<std::string>& arguments = {});

}  // namespace workbench
