#pragma once

#include <hostapi/window/locale.h>

#include <optional>
#include <string>
#include <string_view>

namespace workbench {

/// A property of a locale (`LOCALE_...`); empty for an unknown property.
std::wstring localeInfo(const std::string& locale, UINT type);
/// A number of plain digits, with an optional minus and point, in a format; nothing for another text.
std::optional<std::wstring> formatNumber(std::wstring_view number, const NUMBERFMT& format);

}  // namespace workbench
