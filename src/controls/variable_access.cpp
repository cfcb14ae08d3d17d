#include "controls/variable_access.h"

#include <hostapi/zorq/variables.h>

#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

constexpr int kUnreadable = -1;

int truncateToInt(double value) {
    constexpr double kLowest = std::numeric_limits<int>::min();
    constexpr double kHighest = std::numeric_limits<int>::max();
    return value >= kLowest && value <= kHighest ? static_cast<int>(value) : kUnreadable;
}

}  // namespace

int readVariableStrict(const wchar_t* name) {
    VxResultBuffer buffer;
    if (vxedGetVar(name, &buffer) != kRtNorm)
        return kUnreadable;
    switch (buffer.type) {
    case kRtReal:
        return truncateToInt(buffer.value.real);
    case kRtShort:
        return buffer.value.shortInt;
    case kRtLong:
        return buffer.value.longInt;
    case kRtString:
        std::free(buffer.value.string);
        return kUnreadable;
    default:
        return kUnreadable;
    }
}

int readVariableFlag(const wchar_t* name) {
    VxResultBuffer buffer;
    vxedGetVar(name, &buffer);
    return buffer.type == kRtLong ? buffer.value.longInt : buffer.value.shortInt;
}

int readVariableShort(const wchar_t* name) {
    VxResultBuffer buffer;
    vxedGetVar(name, &buffer);
    return buffer.value.shortInt;
}

std::optional<VxString> readVariableText(const wchar_t* name) {
    VxResultBuffer buffer;
    if (vxedGetVar(name, &buffer) != kRtNorm || buffer.type != kRtString)
        return {};
    if (buffer.value.string == nullptr)
        return {};
    VxString text = buffer.value.string;
    std::free(buffer.value.string);
    return text;
}

void writeVariableShort(const wchar_t* name, int value) {
    VxResultBuffer buffer;
    buffer.type = kRtShort;
    buffer.value.shortInt = static_cast<std::int16_t>(value);
    vxedSetVar(name, &buffer);
}

void writeVariableReal(const wchar_t* name, double value) {
    VxResultBuffer buffer;
    buffer.type = kRtReal;
    buffer.value.real = value;
    vxedSetVar(name, &buffer);
}
