#include "workbench/drawing/symbol_name.h"

#include <unicode/uchar.h>

#include <algorithm>

namespace workbench::drawing {

namespace {

constexpr std::wstring_view kForbidden = L"<>/\\\":;?*,=`";
constexpr std::wstring_view kSigns = L"$_-";

bool isControl(wchar_t character) {
    return character < 0x20 || character == 0x7f;
}

bool isAllowed(wchar_t character, const SymbolNameRules& rules) {
    if (character == L'|')
        return rules.verticalBar;
    if (!rules.isShort)
        return !isControl(character) && kForbidden.find(character) == std::wstring_view::npos;
    if (character == L' ')
        return rules.blanks;
    return u_isalnum(static_cast<UChar32>(character)) != 0 ||
           kSigns.find(character) != std::wstring_view::npos;
}

}  // namespace

SymbolNameProblem problemOfSymbolName(std::wstring_view name, const SymbolNameRules& rules) {
    if (name.empty() || name.front() == L' ' || name.back() == L' ')
        return SymbolNameProblem::Missing;
    const bool areAllowed = std::all_of(name.begin(), name.end(), [&rules](wchar_t character) {
        return isAllowed(character, rules);
    });
    if (!areAllowed)
        return SymbolNameProblem::ForbiddenCharacter;
    return name.size() > (rules.isShort ? kShortSymbolName : kLongSymbolName)
               ? SymbolNameProblem::TooLong
               : SymbolNameProblem::None;
}

}  // namespace workbench::drawing
