#pragma once

#include "workbench/host/workbench.h"

#include <filesystem>
#include <string>

namespace CLI {
class App;
}

namespace workbench {

/// Exit codes of the programs.
constexpr int kExitPassed = 0;
constexpr int kExitFailed = 1;  ///< A check of a script failed, or the script is in error.
constexpr int kExitUsage = 2;   ///< Wrong usage, or a file that can't be taken.

/// What the programs with a workbench are started with.
struct StartOptions {
    /// Libraries, menu and drawing as they lie beside the program.
    StartOptions();

    WorkbenchOptions workbench;
    std::filesystem::path journalFile;  ///< Empty: none.
    std::string drawing;                ///< That is opened first.
};

/// Has a command take the options of the workbench itself: journal, menu, profiles, locale,
/// libraries.
void addStartOptions(CLI::App& command, StartOptions& options);

}  // namespace workbench
