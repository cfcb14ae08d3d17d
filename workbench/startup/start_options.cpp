#include "workbench/startup/start_options.h"

#include "workbench/startup/default_paths.h"

#include <CLI/CLI.hpp>

namespace workbench {

StartOptions::StartOptions() : drawing(defaultDrawing().string()) {
    workbench.libraryDir = defaultLibraryDir();
    workbench.panelFile = defaultPanelFile();
}

void addStartOptions(CLI::App& command, StartOptions& options) {
    WorkbenchOptions& host = options.workbench;
    command.add_option("--journal", options.journalFile, "Write the journal to a file, JSON lines");
    command.add_option("--panels", host.panelFile, "Menu data (JSON)");
    command.add_option("--profile-dir", host.profileDir, "Folder of the profiles");
    command.add_option("--locale", host.locale, "Language and formats, such as en_US");
    command.add_option("--lib-dir", host.libraryDir, "Folder of modules and libraries");
}

}  // namespace workbench
