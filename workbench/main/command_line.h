#pragma once

namespace workbench {

/// Runs the program with its command line and returns its exit code. All complaints go to standard
/// error, one line each.
int runCommandLine(int count, char** arguments);

}  // namespace workbench
