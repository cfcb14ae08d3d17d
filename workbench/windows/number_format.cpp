#include "workbench/windows/number_format.h"

#include "workbench/base/text.h"

#include <unicode/dcfmtsym.h>
#include <unicode/decimfmt.h>
#include <unicode/numfmt.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace workbench {

namespace {

std::wstring toWide(const icu::UnicodeString& text) {
    std::string bytes;
    text.toUTF8String(bytes);
    return workbench::toWide(bytes);
}

/// As "3;0" or "3;2;0".
std::wstring groupingText(const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::NumberFormat> format(
        icu::NumberFormat::createInstance(locale, status));
    const auto* decimal = dynamic_cast<const icu::DecimalFormat*>(format.get());
    if (U_FAILURE(status) || decimal == nullptr)
        return {};
    std::wstring sizes = std::to_wstring(decimal->getGroupingSize());
    const int second = decimal->getSecondaryGroupingSize();
    if (second > 0 && second != decimal->getGroupingSize())
        sizes += L";" + std::to_wstring(second);
    return sizes + L";0";
}

bool isDigits(std::wstring_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](wchar_t letter) { return letter >= L'0' && letter <= L'9'; });
}

/// The sizes of groups from the right, the last repeated: 3 is 3, 3, …; 32 is 3, 2, 2, …; 30 is one
/// group of 3.
std::vector<std::size_t> groupSizes(UINT grouping) {
    std::vector<std::size_t> sizes;
    for (; grouping != 0; grouping /= 10)
        sizes.insert(sizes.begin(), grouping % 10);
    return sizes;
}

std::wstring grouped(std::wstring_view digits, UINT grouping, const std::wstring& separator) {
    const std::vector<std::size_t> sizes = groupSizes(grouping);
    std::wstring text;
    std::size_t index = 0;
    while (!sizes.empty()) {
        const std::size_t size = sizes[std::min(index++, sizes.size() - 1)];
        if (size == 0 || digits.size() <= size)
            break;
        text = separator + std::wstring(digits.substr(digits.size() - size)) + text;
        digits.remove_suffix(size);
    }
    return std::wstring(digits) + text;
}

/// Rounds the digits of a fraction to so many places; whether one is carried into the whole.
bool roundFraction(std::wstring& fraction, std::size_t places) {
    const bool up = fraction.size() > places && fraction[places] >= L'5';
    fraction.resize(places, L'0');
    if (!up)
        return false;
    for (auto digit = fraction.rbegin(); digit != fraction.rend(); ++digit) {
        if (*digit != L'9') {
            ++*digit;
            return false;
        }
        *digit = L'0';
    }
    return true;
}

void addOne(std::wstring& whole) {
    for (auto digit = whole.rbegin(); digit != whole.rend(); ++digit) {
        if (*digit != L'9') {
            ++*digit;
            return;
        }
        *digit = L'0';
    }
    whole.insert(whole.begin(), L'1');
}

}  // namespace

std::wstring localeInfo(const std::string& locale, UINT type) {
    const icu::Locale place(locale.c_str());
    if (type == LOCALE_SGROUPING)
        return groupingText(place);
    UErrorCode status = U_ZERO_ERROR;
    const icu::DecimalFormatSymbols symbols(place, status);
    using Symbols = icu::DecimalFormatSymbols;
    if (U_FAILURE(status))
        return {};
    if (type == LOCALE_SDECIMAL)
        return toWide(symbols.getConstSymbol(Symbols::kDecimalSeparatorSymbol));
    if (type == LOCALE_STHOUSAND)
        return toWide(symbols.getConstSymbol(Symbols::kGroupingSeparatorSymbol));
    return {};
}

std::optional<std::wstring> formatNumber(std::wstring_view number, const NUMBERFMT& format) {
    const bool negative = !number.empty() && number.front() == L'-';
    if (negative)
        number.remove_prefix(1);
    const auto point = number.find(L'.');
    std::wstring whole(number.substr(0, point));
    std::wstring fraction(point == std::wstring_view::npos ? L"" : number.substr(point + 1));
    if ((whole.empty() && fraction.empty()) || !isDigits(whole) || !isDigits(fraction))
        return {};
    whole.erase(0, std::min(whole.find_first_not_of(L'0'), whole.size()));
    if (roundFraction(fraction, format.decimals))
        addOne(whole);
    const bool isZero = whole.empty() && fraction.find_first_not_of(L'0') == std::wstring::npos;
    if (whole.empty() && (format.leadingZero != 0 || format.decimals == 0))
        whole = L"0";
    std::wstring text = grouped(whole, format.grouping, format.thousandSeparator);
    if (format.decimals != 0)
        text += format.decimalSeparator + fraction;
    return negative && !isZero ? L"-" + text : text;
}

}  // namespace workbench
