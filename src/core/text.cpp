#include "core/text.h"

#include <algorithm>
#include <cwctype>

namespace {

bool sameLetter(wchar_t left, wchar_t right) {
    return std::towlower(static_cast<std::wint_t>(left)) ==
           std::towlower(static_cast<std::wint_t>(right));
}

}  // namespace

VxString trimmed(std::wstring_view text) {
    const auto isBlank = [](wchar_t letter) {
        return std::iswspace(static_cast<std::wint_t>(letter)) != 0;
    };
    const auto first = std::find_if_not(text.begin(), text.end(), isBlank);
    const auto last = std::find_if_not(text.rbegin(), text.rend(), isBlank).base();
    return first < last ? VxString(first, last) : VxString();
}

bool equalNoCase(std::wstring_view left, std::wstring_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), sameLetter);
}
