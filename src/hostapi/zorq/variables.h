#pragma once

#include <hostapi/types.h>

constexpr short kRtReal = 5001;    ///< A 64-bit real.
constexpr short kRtShort = 5003;   ///< A 16-bit number.
constexpr short kRtString = 5005;  ///< A string.
constexpr short kRtLong = 5010;    ///< A 32-bit number.
constexpr int kRtNorm = 5100;      ///< Success of a variable call.
constexpr int kRtError = -5001;    ///< Failure of a variable call.

/// The host's value record for system variables: a link, a type code, a value.
struct VxResultBuffer {
    VxResultBuffer* next = nullptr;
    short type = 0;
    union Value {
        double real;
        std::int16_t shortInt;
        std::int32_t longInt;
        wchar_t* string;
    } value{};
};

/// Reads a system variable; names are taken without regard to case. Returns 5100 on success. A
/// string is handed over to the caller, who frees it with `std::free`.
int vxedGetVar(const wchar_t* name, VxResultBuffer* result);
/// Writes a system variable of the present document or of the program. Returns 5100 on success;
/// an unknown, read-only or out-of-range variable keeps its value, and so does one of a drawing that
/// isn't locked for writing (`VxApDocManager::lockDocument`).
int vxedSetVar(const wchar_t* name, const VxResultBuffer* value);
/// A new, zeroed result buffer of a type.
VxResultBuffer* vxutNewRb(int type);
/// Frees a chain of result buffers with the strings in it. Returns 5100.
int vxutRelRb(VxResultBuffer* buffer);
