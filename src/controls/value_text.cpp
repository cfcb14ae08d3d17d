#include "controls/value_text.h"

#include "controls/doc_lock.h"
#include "controls/variable_access.h"
#include "core/host_objects.h"
#include "core/text.h"

#include <hostapi/vxdb18/host_services.h>
#include <hostapi/window/locale.h>
#include <hostapi/zorq/documents.h>
#include <hostapi/zorq/variables.h>

#include <array>

namespace {

constexpr int kOfDrawing = -1;  // the unit, or the precision, that the drawing has
constexpr int kDecimal = 2;
constexpr int kDecimalDegrees = 0;

/// Room for a number of the locale, its closing null included.
using NumberBuffer = std::array<wchar_t, 30>;

std::optional<double> parseDistance(const VxString& text, int unit) {
    double value = 0.0;
    if (workingDatabase() == nullptr || vxdbDisToF(text.c_str(), unit, &value) != kRtNorm)
        return {};
    return value;
}

/// "3;0" is 3, "3;2;0" is 32, "3;2" is 320: a list that doesn't end in 0 ends the grouping.
UINT groupingOf(const VxString& sizes) {
    UINT grouping = 0;
    for (const wchar_t letter : sizes) {
        if (letter >= L'0' && letter <= L'9')
            grouping = grouping * 10 + static_cast<UINT>(letter - L'0');
    }
    const bool repeats = !sizes.empty() && sizes.back() == L'0';
    return repeats ? grouping / 10 : grouping * 10;
}

NUMBERFMT localeFormat(int decimals) {
    NUMBERFMT format;
    format.decimals = static_cast<UINT>(decimals);
    format.leadingZero = 0;
    format.grouping = groupingOf(GetLocaleInfo(LOCALE_SGROUPING));
    format.decimalSeparator = GetLocaleInfo(LOCALE_SDECIMAL);
    format.thousandSeparator = GetLocaleInfo(LOCALE_STHOUSAND);
    return format;
}

const wchar_t* writeInLocale(const VxString& number, int decimals, NumberBuffer& buffer) {
    if (GetNumberFormat(number.c_str(), localeFormat(decimals), buffer.data(),
                        static_cast<int>(buffer.size())) == 0)
        buffer.front() = L'\0';
    return buffer.data();
}

}  // namespace

VxString FormatLinear(double value) {
    VxString text;
    if (workingDatabase() != nullptr)
        vxdbRToS(value, kOfDrawing, kOfDrawing, text);
    return text;
}

VxString FormatDecimal(double value) {
    VxString text;
    if (workingDatabase() != nullptr)
        vxdbRToS(value, kDecimal, readVariableShort(L"LUPREC"), text);
    return text;
}

VxString FormatAngle(double angle, int precision) {
    VxString text;
    if (workingDatabase() != nullptr)
        vxdbAngToS(angle, kOfDrawing, precision, text);
    return text;
}

// A buffer each, so that one of each can stand in the same message.

const wchar_t* FormatLocaleInteger(int number) {
    static NumberBuffer buffer;
    return writeInLocale(formatText(L"%d", number), 0, buffer);
}

const wchar_t* FormatLocaleReal(double number, int decimals) {
    static NumberBuffer buffer;
    return writeInLocale(formatText(L"%.*f", decimals, number), decimals, buffer);
}

std::optional<double> parseLinear(const VxString& text) {
    return parseDistance(text, kOfDrawing);
}

std::optional<double> parseDecimal(const VxString& text) {
    return parseDistance(text, kDecimal);
}

std::optional<double> parseDecimalAsShown(const VxString& text) {
    const std::optional<double> value = parseDecimal(text);
    if (!value)
        return {};
    const std::optional<double> shown = parseDecimal(FormatDecimal(*value));
    return shown ? shown : value;
}

std::optional<double> parseAngle(const VxString& text) {
    double angle = 0.0;
    if (workingDatabase() == nullptr || vxdbAngToF(text.c_str(), kOfDrawing, &angle) != kRtNorm)
        return {};
    return angle;
}

std::optional<double> parseDegrees(const VxString& text) {
    VxDbDatabase* database = workingDatabase();
    if (database == nullptr)
        return {};
    const VxAxDocLock lock(database, kLockForWrite);
    double angle = 0.0;
    if (vxdbAngToF(text.c_str(), kDecimalDegrees, &angle) != kRtNorm)
        return {};
    return angle;
}
