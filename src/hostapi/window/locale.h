#pragma once

#include <hostapi/types.h>

/// What `GetLocaleInfo` tells of the user's locale.
constexpr UINT LOCALE_SDECIMAL = 14;   ///< The separator between the whole and the decimal places.
constexpr UINT LOCALE_STHOUSAND = 15;  ///< The separator between groups of digits.
constexpr UINT LOCALE_SGROUPING = 16;  ///< Sizes of the groups: "3;0" repeats 3; "3;2;0" repeats 2.

/// How `GetNumberFormat` writes a number.
struct NUMBERFMT {
    UINT decimals = 0;     ///< Decimal places.
    BOOL leadingZero = 0;  ///< Whether a 0 stands before a fraction below 1.
    UINT grouping = 3;     ///< Digits of a group; 32 means one group of 3, then groups of 2.
    VxString decimalSeparator;
    VxString thousandSeparator;
    UINT negativeOrder = 1;  ///< 1: the minus sign stands in front.
};

/// A property of the user's locale (`LOCALE_...`); empty for an unknown one.
VxString GetLocaleInfo(UINT type);
/// Writes a number, given as plain digits with an optional minus and point, in a format. `size` is
/// the number of characters that fit the buffer, the closing null among them. Returns the number
/// written with it; 0, with nothing written, if the text is no number or doesn't fit.
int GetNumberFormat(const wchar_t* number, const NUMBERFMT& format, wchar_t* buffer, int size);
