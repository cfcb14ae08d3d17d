#pragma once

#include <hostapi/types.h>

#include <optional>

/// Numbers of the navigation controls as texts. Without a working database there are no units, so
/// that nothing can be written or read.

/// A distance in the drawing's units; empty without a database.
VxString FormatLinear(double value);
/// A plain decimal number with the drawing's precision; empty without a database.
VxString FormatDecimal(double value);
/// An angle, given in radians, in the drawing's units with a number of decimal places, -1 for the
/// drawing's own; empty without a database.
VxString FormatAngle(double angle, int precision);

/// A whole number as the user's locale writes it. Good until the next call; empty if it is too long.
const wchar_t* FormatLocaleInteger(int number);
/// A number with decimal places as the user's locale writes it, without a leading zero. Good until
/// the next call, of this function alone; empty if it is too long.
const wchar_t* FormatLocaleReal(double number, int decimals);

/// A distance in the drawing's units; nothing for a text that is none and without a database.
std::optional<double> parseLinear(const VxString& text);
/// A plain decimal number; nothing for a text that is none and without a database.
std::optional<double> parseDecimal(const VxString& text);
/// The same, rounded to what `FormatDecimal` shows of it.
std::optional<double> parseDecimalAsShown(const VxString& text);
/// An angle in the drawing's units, in radians; nothing for a text that is none and without a
/// database.
std::optional<double> parseAngle(const VxString& text);
/// An angle in decimal degrees whatever the drawing's units are, in radians; the database's document
/// is locked meanwhile. Nothing for a text that is none and without a database.
std::optional<double> parseDegrees(const VxString& text);
