#pragma once

namespace workbench {

/// Exit codes of the program.
constexpr int kExitPassed = 0;
constexpr int kExitFailed = 1;  ///< A check of a script failed, or the script is in error.
constexpr int kExitUsage = 2;   ///< Wrong usage, or a file that can't be taken.

/// Runs the program with its command line and returns its exit code. All complaints go to standard
/// error, one line each.
int runCommandLine(int count, char** arguments);

}  // namespace workbench
