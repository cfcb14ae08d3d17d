#pragma once

#include "workbench/desktop/look/look.h"

#include <QString>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace workbench::desktop {

/// What the window remembers from one run to the next: a file beside the profiles.
struct DesktopState {
    std::optional<Shade> shade;          ///< Nothing: not known, or of a name that isn't.
    std::vector<std::wstring> rolledUp;  ///< IDs of panels.
    std::filesystem::path lastFolder;    ///< Of drawings; empty: none.
    /// A theme that this version doesn't know, which is written again while there is no `shade`: the
    /// version that does is to find it. Empty: none.
    std::string unknownTheme = {};

    /// Whether the window was ever closed before: then its file is there.
    static bool exists(const std::filesystem::path& folder);
    /// Reads the file of a folder; a missing one is a fresh state. What can't be taken is left out,
    /// and `complaint` says what and where.
    static DesktopState read(const std::filesystem::path& folder, QString& complaint);
    friend bool operator==(const DesktopState&, const DesktopState&) = default;
    /// Writes the file. Throws `InputError` if it can't be written.
    void write(const std::filesystem::path& folder) const;
};

}  // namespace workbench::desktop
