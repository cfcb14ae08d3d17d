#include "workbench/loader/string_trace.h"

#include <numeric>

namespace workbench {

namespace {

/// The length of the insert at the start of a text that begins with '%'; 0 if it isn't one.
std::size_t insertLength(std::wstring_view text) {
    constexpr std::wstring_view kFlagsWidthAndSize = L"0123456789+-#.*hlLqjzt";
    constexpr std::wstring_view kConversions = L"diouxXeEfFgGaAcCsSp";
    const std::size_t conversion = text.find_first_not_of(kFlagsWidthAndSize, 1);
    if (conversion == std::wstring_view::npos ||
        kConversions.find(text[conversion]) == std::wstring_view::npos)
        return 0;
    return conversion + 1;
}

/// The texts before, between and behind the inserts of a format.
std::vector<std::wstring> literalsOf(std::wstring_view format) {
    std::vector<std::wstring> literals(1);
    while (!format.empty()) {
        if (format.substr(0, 2) == L"%%") {
            literals.back() += L'%';
            format.remove_prefix(2);
            continue;
        }
        const std::size_t insert = format.front() == L'%' ? insertLength(format) : 0;
        if (insert == 0) {
            literals.back() += format.front();
            format.remove_prefix(1);
            continue;
        }
        literals.emplace_back();
        format.remove_prefix(insert);
    }
    return literals;
}

/// Whether a text is the literals in their order, with anything in between.
bool fits(std::wstring_view text, const std::vector<std::wstring>& literals) {
    const std::wstring& first = literals.front();
    const std::wstring& last = literals.back();
    if (text.size() < first.size() + last.size() || text.substr(0, first.size()) != first ||
        text.substr(text.size() - last.size()) != last)
        return false;
    text = text.substr(first.size(), text.size() - first.size() - last.size());
    for (std::size_t i = 1; i + 1 < literals.size(); ++i) {
        const std::size_t place = text.find(literals[i]);
        if (place == std::wstring_view::npos)
            return false;
        text.remove_prefix(place + literals[i].size());
    }
    return true;
}

}  // namespace

void StringTrace::remember(int number, std::wstring_view text) {
    if (text.empty())
        return;
    if (const auto known = m_texts.find(text); known != m_texts.end())
        known->second = number;
    else
        m_texts.emplace(text, number);

    std::vector<std::wstring> literals = literalsOf(text);
    const std::size_t length = std::accumulate(
        literals.begin(), literals.end(), std::size_t{0},
        [](std::size_t sum, const std::wstring& literal) { return sum + literal.size(); });
    // A format of nothing but inserts would claim every text.
    if (literals.size() < 2 || length == 0) {
        m_formats.erase(number);
        return;
    }
    m_formats.insert_or_assign(number, Format{number, std::move(literals), length});
}

std::optional<int> StringTrace::resourceNumberOf(std::wstring_view text) const {
    if (text.empty())
        return std::nullopt;
    if (const auto exact = m_texts.find(text); exact != m_texts.end())
        return exact->second;

    const Format* best = nullptr;
    for (const auto& [number, format] : m_formats) {
        if (fits(text, format.literals) &&
            (best == nullptr || format.literalLength > best->literalLength))
            best = &format;
    }
    if (best == nullptr)
        return std::nullopt;
    return best->number;
}

}  // namespace workbench
