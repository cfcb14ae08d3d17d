#include "workbench/editor/distance_text.h"

#include "workbench/base/number_text.h"

#include <cmath>
#include <locale>
#include <sstream>
#include <string>

namespace workbench {

namespace {

constexpr double kInchesInFoot = 12.0;

bool isBlank(wchar_t character) {
    return character == L' ' || character == L'\t';
}

bool isDigit(wchar_t character) {
    return character >= L'0' && character <= L'9';
}

/// Reads a distance from left to right; every `take` leaves the text as it is when it gives nothing.
class DistanceReader {
public:
    explicit DistanceReader(std::wstring_view text) : m_rest(text) {}

    bool atEnd() const { return m_rest.empty(); }

    void skipBlanks() {
        while (!m_rest.empty() && isBlank(m_rest.front()))
            m_rest.remove_prefix(1);
    }

    bool take(wchar_t character) {
        if (m_rest.empty() || m_rest.front() != character)
            return false;
        m_rest.remove_prefix(1);
        return true;
    }

    /// A number without a sign, perhaps with a point and an exponent.
    std::optional<double> takeNumber() {
        std::size_t length = countDigits(0);
        std::size_t digits = length;
        if (length < m_rest.size() && m_rest[length] == L'.') {
            const std::size_t fraction = countDigits(length + 1);
            digits += fraction;
            length += 1 + fraction;
        }
        if (digits == 0)
            return {};
        return takeText(length + lengthOfExponent(length));
    }

    /// A fraction of whole numbers such as "3/4"; none with the denominator 0.
    std::optional<double> takeFraction() {
        const std::size_t numerator = countDigits(0);
        if (numerator == 0 || numerator >= m_rest.size() || m_rest[numerator] != L'/')
            return {};
        const std::size_t denominator = countDigits(numerator + 1);
        const std::optional<double> below = toNumber(m_rest.substr(numerator + 1, denominator));
        if (!below || *below == 0.0)
            return {};
        const std::optional<double> above = toNumber(m_rest.substr(0, numerator));
        m_rest.remove_prefix(numerator + 1 + denominator);
        return *above / *below;
    }

    /// A number, a fraction, or both with a blank or "-" between.
    std::optional<double> takeMixed() {
        if (const std::optional<double> fraction = takeFraction())
            return fraction;
        const std::optional<double> whole = takeNumber();
        if (!whole)
            return {};
        const std::wstring_view behind = m_rest;
        if (take(L'-') || take(L' ')) {
            if (const std::optional<double> fraction = takeFraction())
                return *whole + *fraction;
            m_rest = behind;
        }
        return whole;
    }

private:
    std::size_t countDigits(std::size_t from) const {
        std::size_t end = from;
        while (end < m_rest.size() && isDigit(m_rest[end]))
            ++end;
        return end - from;
    }

    std::size_t lengthOfExponent(std::size_t from) const {
        if (from >= m_rest.size() || (m_rest[from] != L'e' && m_rest[from] != L'E'))
            return 0;
        const bool hasSign =
            from + 1 < m_rest.size() && (m_rest[from + 1] == L'+' || m_rest[from + 1] == L'-');
        const std::size_t mark = hasSign ? 2 : 1;
        const std::size_t digits = countDigits(from + mark);
        return digits == 0 ? 0 : mark + digits;
    }

    static std::optional<double> toNumber(std::wstring_view digits) {
        std::wistringstream stream{std::wstring(digits)};
        stream.imbue(std::locale::classic());
        double number = 0.0;
        if (!(stream >> number) || !std::isfinite(number))
            return {};
        return number;
    }

    std::optional<double> takeText(std::size_t length) {
        const std::optional<double> number = toNumber(m_rest.substr(0, length));
        if (number)
            m_rest.remove_prefix(length);
        return number;
    }

    std::wstring_view m_rest;
};

bool takesFeet(LinearUnit unit) {
    return unit == LinearUnit::Engineering || unit == LinearUnit::Architectural;
}

/// What stands behind the feet: nothing, or inches with or without their mark.
std::optional<double> readInches(DistanceReader& reader) {
    reader.skipBlanks();
    reader.take(L'-');
    if (reader.atEnd())
        return 0.0;
    const std::optional<double> inches = reader.takeMixed();
    reader.take(L'"');
    return inches;
}

std::optional<double> readMagnitude(DistanceReader& reader, LinearUnit unit) {
    const std::optional<double> first = reader.takeMixed();
    if (!first || !takesFeet(unit))
        return first;
    if (reader.take(L'"') || !reader.take(L'\''))
        return first;
    const std::optional<double> inches = readInches(reader);
    if (!inches)
        return {};
    return *first * kInchesInFoot + *inches;
}

/// A whole number and a fraction of halvings, the fraction left out when it is zero.
std::wstring fractionText(double value, int halvings) {
    const double parts = std::ldexp(1.0, halvings);
    const double rounded = std::round(value * parts) / parts;
    const double whole = std::floor(rounded);
    auto numerator = static_cast<long>((rounded - whole) * parts);
    long denominator = 1L << halvings;
    while (numerator != 0 && numerator % 2 == 0) {
        numerator /= 2;
        denominator /= 2;
    }
    if (numerator == 0)
        return fixedText(whole, 0);
    const std::wstring fraction = std::to_wstring(numerator) + L"/" + std::to_wstring(denominator);
    return whole == 0.0 ? fraction : fixedText(whole, 0) + L" " + fraction;
}

/// Rounded as it is shown, so that inches that round up to a foot carry.
double roundedInches(double inches, LinearUnit unit, int precision) {
    const double parts =
        unit == LinearUnit::Architectural ? std::ldexp(1.0, precision) : std::pow(10.0, precision);
    return std::round(inches * parts) / parts;
}

std::wstring feetText(double value, LinearUnit unit, int precision) {
    const double rounded = roundedInches(value, unit, precision);
    const double feet = std::floor(rounded / kInchesInFoot);
    const double inches = rounded - feet * kInchesInFoot;
    std::wstring inchText = (unit == LinearUnit::Architectural ? fractionText(inches, precision)
                                                               : fixedText(inches, precision)) +
                            L"\"";
    if (feet == 0.0)
        return inchText;
    const std::wstring footText = fixedText(feet, 0) + L"'";
    return inches == 0.0 ? footText : footText + L"-" + inchText;
}

std::wstring magnitudeText(double value, LinearUnit unit, int precision) {
    switch (unit) {
    case LinearUnit::Scientific:
        return scientificText(value, precision);
    case LinearUnit::Decimal:
        return fixedText(value, precision);
    case LinearUnit::Engineering:
    case LinearUnit::Architectural:
        return feetText(value, unit, precision);
    case LinearUnit::Fractional:
        return fractionText(value, precision);
    }
    return {};
}

}  // namespace

std::wstring formatDistance(double value, LinearUnit unit, int precision) {
    const std::wstring text = magnitudeText(std::fabs(value), unit, precision);
    const bool isZero = text.find_first_of(L"123456789") == std::wstring::npos;
    return value < 0.0 && !isZero ? L"-" + text : text;
}

std::optional<double> parseDistance(std::wstring_view text, LinearUnit unit) {
    DistanceReader reader(text);
    reader.skipBlanks();
    const bool negative = reader.take(L'-');
    if (!negative)
        reader.take(L'+');
    const std::optional<double> magnitude = readMagnitude(reader, unit);
    reader.skipBlanks();
    if (!magnitude || !reader.atEnd())
        return {};
    return negative ? -*magnitude : *magnitude;
}

}  // namespace workbench
