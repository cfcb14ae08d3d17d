#include "workbench/commands/answers.h"

#include "workbench/base/text.h"

#include <algorithm>
#include <cmath>
#include <locale>
#include <sstream>

namespace workbench {

namespace {

std::wstring_view trim(std::wstring_view text) {
    const std::size_t first = text.find_first_not_of(L" \t");
    if (first == std::wstring_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(L" \t") - first + 1);
}

bool isCapital(wchar_t character) {
    return character < L'a' || character > L'z';
}

}  // namespace

std::optional<double> parseNumber(std::wstring_view text) {
    std::wistringstream stream{std::wstring(text)};
    stream.imbue(std::locale::classic());
    double number = 0.0;
    if (text.empty() || !(stream >> number) || !stream.eof() || !std::isfinite(number))
        return {};
    return number;
}

std::optional<drawing::Vec3> parsePoint(std::wstring_view text) {
    const std::vector<std::wstring> parts = splitList(text);
    if (parts.size() < 2 || parts.size() > 3)
        return {};
    double coordinates[3] = {};
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const std::optional<double> number = parseNumber(parts[i]);
        if (!number)
            return {};
        coordinates[i] = *number;
    }
    return drawing::Vec3{coordinates[0], coordinates[1], coordinates[2]};
}

bool choosesOption(std::wstring_view answer, std::wstring_view option) {
    if (answer.starts_with(L'_'))
        answer.remove_prefix(1);
    const auto shortest = static_cast<std::size_t>(
        std::find_if_not(option.begin(), option.end(), isCapital) - option.begin());
    return answer.size() >= shortest && answer.size() <= option.size() &&
           equalNoCase(answer, option.substr(0, answer.size()));
}

std::vector<std::wstring> splitList(std::wstring_view text) {
    std::vector<std::wstring> parts;
    while (!text.empty()) {
        const std::size_t comma = std::min(text.find(L','), text.size());
        const std::wstring_view part = trim(text.substr(0, comma));
        if (!part.empty())
            parts.emplace_back(part);
        text.remove_prefix(std::min(comma + 1, text.size()));
    }
    return parts;
}

bool fitsPattern(std::wstring_view name, std::wstring_view pattern) {
    if (pattern.empty())
        return name.empty();
    if (pattern.front() == L'*')
        return fitsPattern(name, pattern.substr(1)) ||
               (!name.empty() && fitsPattern(name.substr(1), pattern));
    if (name.empty())
        return false;
    return (pattern.front() == L'?' || equalNoCase(name.substr(0, 1), pattern.substr(0, 1))) &&
           fitsPattern(name.substr(1), pattern.substr(1));
}

std::wstring showValue(const Value& value) {
    if (value.isString())
        return toWide(value.asString());
    std::wostringstream stream;
    stream.imbue(std::locale::classic());
    if (value.isInteger())
        stream << value.asInteger();
    else if (value.isReal())
        stream << value.asReal();
    return stream.str();
}

}  // namespace workbench
