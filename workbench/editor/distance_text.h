#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace workbench {

/// The forms in which distances are shown and entered; the numbers are those of LUNITS.
enum class LinearUnit {
    Scientific = 1,     ///< 1.5E+01
    Decimal = 2,        ///< 15.5
    Engineering = 3,    ///< 1'-3.5"
    Architectural = 4,  ///< 1'-3 1/2"
    Fractional = 5,     ///< 15 1/2
};

/// The distance that a text means; nothing for a text that means none.
///
/// Every unit takes plain numbers, with a point and an exponent, and fractions: "3/4", "2 1/2",
/// "2-1/2". Feet and inches ("5'", "6\"", "5'-6 1/2\"", "5'6.5") are taken in engineering and
/// architectural units only; the value is in inches then. A sign stands in front; blanks around the
/// text don't count.
std::optional<double> parseDistance(std::wstring_view text, LinearUnit unit);

/// The text of a distance with so many decimal places, 0 to 8. In engineering and architectural units
/// the value is in inches; feet and inches that are zero are left out. In architectural and fractional
/// units the places are halvings: 4 stands for sixteenths.
std::wstring formatDistance(double value, LinearUnit unit, int precision);

}  // namespace workbench
