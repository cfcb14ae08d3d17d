#pragma once

#include "workbench/base/value.h"
#include "workbench/drawing/database/geometry.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

/// \name What answers at the command line mean
/// @{

/// A number, with a point for its fraction; nothing for any other text.
std::optional<double> parseNumber(std::wstring_view text);
/// A point, "x,y" or "x,y,z"; nothing for any other text.
std::optional<drawing::Vec3> parsePoint(std::wstring_view text);
/// Whether an answer chooses an option: its capitals are what must be entered at least, as in
/// "LAyer"; case and a leading "_" don't count.
bool choosesOption(std::wstring_view answer, std::wstring_view option);
/// The parts of a list with commas, blanks around them removed, empty ones left out.
std::vector<std::wstring> splitList(std::wstring_view text);
/// Whether a name fits a pattern with "*" and "?"; case doesn't count.
bool fitsPattern(std::wstring_view name, std::wstring_view pattern);
/// @}

/// A value as a prompt shows it.
std::wstring showValue(const Value& value);

}  // namespace workbench
