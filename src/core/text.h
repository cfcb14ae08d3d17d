#pragma once

#include <hostapi/types.h>

#include <cwchar>
#include <string_view>

/// Whether two texts are equal without regard to case.
bool equalNoCase(std::wstring_view left, std::wstring_view right);

/// A text without the blanks around it.
VxString trimmed(std::wstring_view text);

/// A `printf` format filled in; wide strings go in with "%ls". Empty if the format can't be filled.
template <class... Values>
VxString formatText(const VxString& format, Values... values) {
    constexpr std::size_t kLongest = 65'536;  // characters; no text of a dialog comes near
    VxString text(256, L'\0');
    while (text.size() <= kLongest) {
        const int length = std::swprintf(text.data(), text.size(), format.c_str(), values...);
        // A text that doesn't fit is a failure for one C library, and for another its length.
        if (length >= 0 && static_cast<std::size_t>(length) < text.size()) {
            text.resize(static_cast<std::size_t>(length));
            return text;
        }
        text.resize(text.size() * 4);
    }
    return {};
}
