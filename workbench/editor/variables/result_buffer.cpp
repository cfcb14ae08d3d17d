#include "workbench/editor/variables/result_buffer.h"

#include "workbench/base/text.h"

#include <cstdlib>
#include <cwchar>
#include <string>

namespace workbench {

namespace {

wchar_t* allocateString(const std::wstring& text) {
    auto* copy = static_cast<wchar_t*>(std::malloc((text.size() + 1) * sizeof(wchar_t)));
    return copy == nullptr ? nullptr : std::wmemcpy(copy, text.c_str(), text.size() + 1);
}

}  // namespace

bool fillResultBuffer(VxResultBuffer& buffer, VariableType type, const Value& value) {
    if (value.isNil())
        return false;
    switch (type) {
    case VariableType::Short:
        buffer.type = kRtShort;
        buffer.value.shortInt = static_cast<std::int16_t>(value.asInteger());
        break;
    case VariableType::Long:
        buffer.type = kRtLong;
        buffer.value.longInt = static_cast<std::int32_t>(value.asInteger());
        break;
    case VariableType::Real:
        buffer.type = kRtReal;
        buffer.value.real = value.asReal();
        break;
    case VariableType::String:
        buffer.type = kRtString;
        buffer.value.string = allocateString(toWide(value.asString()));
        break;
    }
    return true;
}

Value valueOf(const VxResultBuffer& buffer) {
    switch (buffer.type) {
    case kRtReal:
        return buffer.value.real;
    case kRtShort:
        return static_cast<int>(buffer.value.shortInt);
    case kRtLong:
        return static_cast<std::int64_t>(buffer.value.longInt);
    case kRtString:
        return buffer.value.string == nullptr ? Value() : Value(toUtf8(buffer.value.string));
    default:
        return {};
    }
}

CallValue shownValue(const Value& value) {
    if (value.isInteger())
        return value.asInteger();
    if (value.isReal())
        return value.asReal();
    if (value.isString())
        return std::string_view(value.asString());
    return {};
}

}  // namespace workbench
