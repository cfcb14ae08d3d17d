#pragma once

namespace workbench::desktop {

/// Runs the program with its command line and returns its exit code. All complaints go to standard
/// error, one line each.
int runDesktop(int count, char** arguments);

}  // namespace workbench::desktop
