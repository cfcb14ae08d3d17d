#pragma once

#include <string_view>

namespace workbench::drawing {

/// What the name of a symbol may be.
struct SymbolNameRules {
    bool isShort = false;      ///< letters, digits, "$", "_" and "-" only, and few of them
    bool blanks = true;        ///< blanks may stand in the short form too
    bool verticalBar = false;  ///< "|" may stand in the name
};

/// The most characters of a long and of a short name.
inline constexpr std::size_t kLongSymbolName = 255;
inline constexpr std::size_t kShortSymbolName = 31;

/// What is wrong with a name.
enum class SymbolNameProblem {
    None,
    Missing,             ///< it is empty, or begins or ends with a blank
    ForbiddenCharacter,  ///< whatever its length
    TooLong,
};
SymbolNameProblem problemOfSymbolName(std::wstring_view name, const SymbolNameRules& rules);

}  // namespace workbench::drawing
