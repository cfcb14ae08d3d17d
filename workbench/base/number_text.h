#pragma once

#include <string>

namespace workbench {

/// A number with a point and so many decimal places, whatever the program's locale is. What rounds to
/// zero has no sign.
std::wstring fixedText(double value, int decimals);
/// The same with a power of ten: "1.5000E+01".
std::wstring scientificText(double value, int decimals);

}  // namespace workbench
