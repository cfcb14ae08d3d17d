#include "workbench/base/text.h"

#include <algorithm>
#include <cstdint>

namespace workbench {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

void appendUtf8(std::string& out, char32_t character) {
    const auto byte = [&out](char32_t value) { out.push_back(static_cast<char>(value)); };
    if (character < 0x80) {
        byte(character);
    } else if (character < 0x800) {
        byte(0xC0 | (character >> 6U));
        byte(0x80 | (character & 0x3FU));
    } else if (character < 0x10000) {
        byte(0xE0 | (character >> 12U));
        byte(0x80 | ((character >> 6U) & 0x3FU));
        byte(0x80 | (character & 0x3FU));
    } else {
        byte(0xF0 | (character >> 18U));
        byte(0x80 | ((character >> 12U) & 0x3FU));
        byte(0x80 | ((character >> 6U) & 0x3FU));
        byte(0x80 | (character & 0x3FU));
    }
}

bool isCharacter(char32_t value) {
    return value <= 0x10FFFF && (value < 0xD800 || value > 0xDFFF);
}

/// Length of the sequence that a first byte begins, 0 for none.
std::size_t sequenceLength(unsigned char first) {
    if (first < 0x80)
        return 1;
    if (first >= 0xC2 && first < 0xE0)
        return 2;
    if (first >= 0xE0 && first < 0xF0)
        return 3;
    if (first >= 0xF0 && first < 0xF5)
        return 4;
    return 0;
}

/// Takes one character off the front of the text.
char32_t takeCharacter(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text.front());
    const std::size_t length = sequenceLength(first);
    if (length == 0 || length > text.size()) {
        text.remove_prefix(1);
        return kReplacement;
    }
    char32_t value = length == 1 ? first : first & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0U) != 0x80U) {
            text.remove_prefix(1);
            return kReplacement;
        }
        value = (value << 6U) | (next & 0x3FU);
    }
    text.remove_prefix(length);
    return isCharacter(value) ? value : kReplacement;
}

template <class Letter>
Letter lower(Letter letter) {
    return letter >= Letter{'A'} && letter <= Letter{'Z'}
               ? static_cast<Letter>(letter - Letter{'A'} + Letter{'a'})
               : letter;
}

template <class Text>
bool equalLetters(Text left, Text right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](auto a, auto b) { return lower(a) == lower(b); });
}

wchar_t upper(wchar_t letter) {
    return letter >= L'a' && letter <= L'z' ? static_cast<wchar_t>(letter - L'a' + L'A') : letter;
}

}  // namespace

std::string toUtf8(std::wstring_view text) {
    std::string out;
    out.reserve(text.size());
    for (const wchar_t unit : text) {
        const auto value = static_cast<char32_t>(unit);
        appendUtf8(out, isCharacter(value) ? value : kReplacement);
    }
    return out;
}

std::wstring toWide(std::string_view text) {
    std::wstring out;
    out.reserve(text.size());
    while (!text.empty())
        out.push_back(static_cast<wchar_t>(takeCharacter(text)));
    return out;
}

bool equalNoCase(std::wstring_view left, std::wstring_view right) {
    return equalLetters(left, right);
}

bool equalNoCase(std::string_view left, std::string_view right) {
    return equalLetters(left, right);
}

std::wstring toUpper(std::wstring_view text) {
    std::wstring out(text);
    std::transform(out.begin(), out.end(), out.begin(), upper);
    return out;
}

}  // namespace workbench
