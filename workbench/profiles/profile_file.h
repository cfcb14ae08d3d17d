#pragma once

#include "workbench/xml/xml_tree.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace workbench {

/// Name of the root element of a profile's file.
inline constexpr const char* kProfileRoot = "Profile";

/// What reading a profile's file gave.
struct ProfileReading {
    std::shared_ptr<XmlTree> tree;  ///< null: there is no file, or it was damaged
    std::string complaint;  ///< "FILE: reason" of a damaged file that was set aside; or empty
};

/// Reads a profile's file. A damaged one is renamed to NAME.xml.damaged, or NAME.xml.damaged-2 and
/// so on, so that nothing is lost. Throws `InputError` for a file that cannot be read or, being
/// damaged, cannot be renamed.
ProfileReading readProfileFile(const std::filesystem::path& file);

/// Writes a file whole or not at all: whoever reads it, now or after a crash, finds the old content
/// or the new one. Throws `InputError`; the old file is untouched then.
void writeFileAtomically(const std::filesystem::path& file, std::string_view content);

/// The file name of a profile; nothing for a name that is empty, too long for a file, begins with a
/// dot, ends with a dot or a blank, or holds what would lead out of the folder or stands for more
/// than itself somewhere ("/", "\", ":", "*", "?", quotes, "<", ">", "|", control characters).
std::optional<std::string> profileFileName(std::string_view profile);

}  // namespace workbench
