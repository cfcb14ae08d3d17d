#include "workbench/base/number_text.h"

#include "workbench/base/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace workbench {

namespace {

std::string write(double value, std::chars_format format, int decimals) {
    std::array<char, 512> buffer{};
    const auto result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, decimals);
    return {buffer.data(), result.ptr};
}

bool hasDigitAboveZero(std::string_view text) {
    return text.find_first_of("123456789") != std::string_view::npos;
}

}  // namespace

std::wstring fixedText(double value, int decimals) {
    std::string text = write(value, std::chars_format::fixed, decimals);
    if (text.front() == '-' && !hasDigitAboveZero(text))
        text.erase(0, 1);
    return toWide(text);
}

std::wstring scientificText(double value, int decimals) {
    return toUpper(toWide(write(value + 0.0, std::chars_format::scientific, decimals)));
}

}  // namespace workbench
