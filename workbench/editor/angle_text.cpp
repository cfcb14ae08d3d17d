#include "workbench/editor/angle_text.h"

#include "workbench/base/number_text.h"
#include "workbench/base/text.h"
#include "workbench/editor/distance_text.h"

#include <cmath>

namespace workbench {

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kHalfTurn = 180.0;    // degrees
constexpr double kQuarterTurn = 90.0;  // degrees
constexpr double kWholeTurn = 360.0;   // degrees
constexpr double kGradsInHalfTurn = 200.0;
constexpr double kSixty = 60.0;
constexpr int kPlacesOfSeconds = 4;  // places beyond these are decimals of the seconds

double toDegrees(double radians) {
    return radians / kPi * kHalfTurn;
}

double toRadians(double degrees) {
    return degrees / kHalfTurn * kPi;
}

double withinTurn(double degrees) {
    const double rest = std::fmod(degrees, kWholeTurn);
    return rest < 0.0 ? rest + kWholeTurn : rest;
}

// Writing

std::wstring sexagesimalText(double degrees, int precision) {
    const int places = precision == 0 ? 0 : precision <= 2 ? 1 : 2;
    const int decimals = precision > kPlacesOfSeconds ? precision - kPlacesOfSeconds : 0;
    const double parts = std::pow(kSixty, places) * std::pow(10.0, decimals);
    double rest = std::round(degrees * parts) / std::pow(10.0, decimals);
    const double inDegree = std::pow(kSixty, places);
    const double whole = std::floor(rest / inDegree);
    std::wstring text = fixedText(whole, 0) + L"d";
    rest -= whole * inDegree;
    if (places == 2) {
        const double minutes = std::floor(rest / kSixty);
        text += fixedText(minutes, 0) + L"'" + fixedText(rest - minutes * kSixty, decimals) + L"\"";
    } else if (places == 1) {
        text += fixedText(rest, 0) + L"'";
    }
    return text;
}

std::wstring bearingText(double degrees, int precision) {
    static constexpr const wchar_t* kAxes[] = {L"E", L"N", L"W", L"S"};
    const double quarters = degrees / kQuarterTurn;
    if (quarters == std::floor(quarters))
        return kAxes[static_cast<int>(quarters) % 4];
    const bool north = degrees < kHalfTurn;
    const bool east = degrees < kQuarterTurn || degrees > kHalfTurn + kQuarterTurn;
    const double fromAxis = std::fabs((north ? kQuarterTurn : kHalfTurn + kQuarterTurn) - degrees);
    return std::wstring(north ? L"N " : L"S ") + sexagesimalText(fromAxis, precision) +
           (east ? L" E" : L" W");
}

// Reading

std::wstring_view trimmed(std::wstring_view text) {
    const auto first = text.find_first_not_of(L" \t");
    if (first == std::wstring_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(L" \t") - first + 1);
}

std::optional<double> parseNumber(std::wstring_view text) {
    if (text.empty() || text != trimmed(text))
        return {};
    return parseDistance(text, LinearUnit::Decimal);
}

/// Takes the number before a mark off the text; without the mark it is 0 and nothing is taken.
std::optional<double> takePart(std::wstring_view& text, std::wstring_view mark) {
    const auto end = text.find(mark);
    if (end == std::wstring_view::npos)
        return 0.0;
    const std::optional<double> number = parseNumber(trimmed(text.substr(0, end)));
    if (number && (*number < 0.0 || *number >= kSixty))
        return {};
    text = trimmed(text.substr(end + mark.size()));
    return number;
}

/// Degrees with a mark, and what minutes and seconds follow.
std::optional<double> parseSexagesimal(std::wstring_view text) {
    const auto end = text.find_first_of(L"dD\u00b0");
    const bool negative = !text.empty() && text.front() == L'-';
    const std::optional<double> degrees = parseNumber(trimmed(text.substr(0, end)));
    std::wstring_view rest = trimmed(text.substr(end + 1));
    const std::optional<double> minutes = takePart(rest, L"'");
    if (!degrees || !minutes)
        return {};
    const std::optional<double> seconds = takePart(rest, L"\"");
    if (!seconds || !rest.empty())
        return {};
    const double size = std::fabs(*degrees) + (*minutes + *seconds / kSixty) / kSixty;
    return toRadians(negative ? -size : size);
}

std::optional<double> parseMarked(std::wstring_view text, AngleUnit unit) {
    if (text.empty())
        return {};
    if (text.find_first_of(L"dD\u00b0") != std::wstring_view::npos)
        return parseSexagesimal(text);
    const wchar_t mark = text.back();
    const bool grads = mark == L'g' || mark == L'G';
    const bool radians = mark == L'r' || mark == L'R';
    if (grads || radians)
        text.remove_suffix(1);
    const std::optional<double> number = parseNumber(text);
    if (!number)
        return {};
    if (grads || (!radians && unit == AngleUnit::Grads))
        return *number / kGradsInHalfTurn * kPi;
    if (radians || unit == AngleUnit::Radians)
        return *number;
    return toRadians(*number);
}

/// "N 45 E" and its like; nothing for a text that is no bearing.
std::optional<double> parseBearing(std::wstring_view text) {
    const std::wstring upper = toUpper(text);
    const bool north = upper.front() == L'N';
    const bool east = upper.back() == L'E';
    const std::optional<double> fromAxis = parseMarked(
        trimmed(std::wstring_view(upper).substr(1, upper.size() - 2)), AngleUnit::Degrees);
    if (!fromAxis || *fromAxis < 0.0 || *fromAxis > kPi / 2.0)
        return {};
    const double axis = north ? kPi / 2.0 : 3.0 * kPi / 2.0;
    return north == east ? axis - *fromAxis : axis + *fromAxis;
}

bool looksLikeBearing(std::wstring_view text) {
    return text.size() >= 3 && std::wstring_view(L"NnSs").find(text.front()) != text.npos &&
           std::wstring_view(L"EeWw").find(text.back()) != text.npos;
}

}  // namespace

std::wstring formatAngle(double radians, AngleUnit unit, int precision) {
    const double degrees = withinTurn(toDegrees(radians));
    switch (unit) {
    case AngleUnit::Degrees:
        return fixedText(degrees, precision);
    case AngleUnit::DegreesMinutesSeconds:
        return sexagesimalText(degrees, precision);
    case AngleUnit::Grads:
        return fixedText(degrees / kHalfTurn * kGradsInHalfTurn, precision) + L"g";
    case AngleUnit::Radians:
        return fixedText(toRadians(degrees), precision) + L"r";
    case AngleUnit::Surveyors:
        return bearingText(degrees, precision);
    }
    return {};
}

std::optional<double> parseAngle(std::wstring_view text, AngleUnit unit) {
    const std::wstring_view inner = trimmed(text);
    return looksLikeBearing(inner) ? parseBearing(inner) : parseMarked(inner, unit);
}

}  // namespace workbench
