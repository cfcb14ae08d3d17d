#pragma once

#include <string>
#include <string_view>

namespace workbench {

/// UTF-8 of a wide text. A unit that stands for no character becomes U+FFFD.
std::string toUtf8(std::wstring_view text);
/// Wide text of UTF-8. A byte that belongs to no character becomes U+FFFD.
std::wstring toWide(std::string_view text);
/// Whether two texts are equal when the letters A to Z count like a to z.
bool equalNoCase(std::wstring_view left, std::wstring_view right);
bool equalNoCase(std::string_view left, std::string_view right);
/// The text in upper case, A to Z only.
std::wstring toUpper(std::wstring_view text);

}  // namespace workbench
