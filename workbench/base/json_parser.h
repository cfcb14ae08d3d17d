#pragma once

#include "workbench/base/json_value.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace workbench {

/// The deepest nesting of arrays and objects that is taken.
inline constexpr int kMaxJsonDepth = 200;

/// Reads a JSON text. `place` names it in errors, usually its file name.
/// Throws InputError: "PLACE:LINE:COLUMN: reason" for broken JSON (the column counts characters
/// from 1), "PLACE:LINE: reason" for an object that has a key twice or nesting that is too deep.
JsonValue parseJson(std::string_view text, const std::string& place);

/// The bytes of a file. Throws InputError ("FILE: reason") if it is missing or cannot be read.
std::string readWholeFile(const std::filesystem::path& file);

}  // namespace workbench
