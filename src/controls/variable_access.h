#pragma once

#include <hostapi/types.h>

#include <optional>

/// Reading and writing of the host's system variables.

/// Reads a number strictly: a real truncated toward zero, a short or a long as it is; -1 for any
/// other type and for a failed read.
int readVariableStrict(const wchar_t* name);
/// Reads a number as a flag: whatever the read's result, the value's 32-bit word of a buffer that
/// was cleared before. An unreadable variable reads as 0.
int readVariableFlag(const wchar_t* name);
/// Reads a short as the visual-style settings are read: of a cleared buffer, whatever the result.
int readVariableShort(const wchar_t* name);
/// Reads a string; nothing if the variable is no string or can't be read.
std::optional<VxString> readVariableText(const wchar_t* name);
/// Writes a short. Whether the host took it isn't looked at.
void writeVariableShort(const wchar_t* name, int value);
/// Writes a real. Whether the host took it isn't looked at.
void writeVariableReal(const wchar_t* name, double value);
