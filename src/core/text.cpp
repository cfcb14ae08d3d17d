#include "core/text.h"

#include <algorithm>
#include <cwctype>

namespace {

bool sameLetter(wchar_t left, wchar_t right) {
    return std::towlower(static_cast<std::wint_t>(left)) ==
           std::towlower(static_cast<std::wint_t>(right));
}

}  // namespace

bool equalNoCase(std::wstring_view left, std::wstring_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), sameLetter);
}
