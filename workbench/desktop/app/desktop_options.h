#pragma once

#include "workbench/desktop/look/look.h"
#include "workbench/startup/start_options.h"

#include <QSize>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace workbench::desktop {

/// What the window is started with.
struct DesktopOptions : StartOptions {
    std::string script;                        ///< Empty: none.
    std::vector<std::string> scriptArguments;  ///< Of the script.
    std::filesystem::path snapshot;            ///< A picture to write before the end; empty: none.
    bool wholeWindow = false;                  ///< The picture shows more than the dashboard.
    bool stay = false;                         ///< The window stays open behind a script.
    Shade shade = Shade::Light;
    double scale = 1.0;     ///< Pixels a logical pixel, 1 to 4.
    QSize size{1280, 860};  ///< Of the window, logical pixels.
    std::string workspace;  ///< To begin with; empty: the menu's own.

    /// Whether the program ends by itself.
    bool endsByItself() const { return !stay && (!script.empty() || !snapshot.empty()); }
};

/// Reads a command line. Nothing if the program is to end with `code`: the complaint, or the help,
/// has been printed.
std::optional<DesktopOptions> readOptions(int count, char** arguments, int& code);

}  // namespace workbench::desktop
