#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace workbench {

/// The forms in which angles are shown and entered; the numbers are those of AUNITS.
enum class AngleUnit {
    Degrees = 0,                ///< 45.5
    DegreesMinutesSeconds = 1,  ///< 45d30'0"
    Grads = 2,                  ///< 50.5556g
    Radians = 3,                ///< 0.7941r
    Surveyors = 4,              ///< N 44d30'0" E
};

/// The text of an angle in radians with so many places, 0 to 8; the angle is taken within one turn.
/// Of degrees, minutes and seconds 0 places show degrees, 1 and 2 minutes too, 3 and 4 seconds, and
/// more the decimal places of the seconds.
std::wstring formatAngle(double radians, AngleUnit unit, int precision);

/// The angle in radians that a text means; nothing for a text that means none. A mark (d, g, r, or the
/// letters of a bearing) has the say; without one the number is in `unit`, in degrees for the two
/// forms that are made of degrees. Blanks around the text don't count.
std::optional<double> parseAngle(std::wstring_view text, AngleUnit unit);

}  // namespace workbench
