#include "workbench/editor/command_text.h"

#include <algorithm>

namespace workbench {

namespace {

bool isCancel(wchar_t character) {
    return character == kCancelCharacter || character == kEscapeCharacter;
}

}  // namespace

bool isCancelText(std::wstring_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), isCancel);
}

std::wstring textOfMacro(std::wstring_view macro) {
    std::wstring text;
    for (std::size_t i = 0; i < macro.size(); ++i) {
        const bool isMark = macro[i] == L'^' && i + 1 < macro.size() &&
                            (macro[i + 1] == L'C' || macro[i + 1] == L'c');
        if (isMark) {
            text.push_back(kCancelCharacter);
            ++i;
        } else {
            text.push_back(macro[i] == L';' ? L'\n' : macro[i]);
        }
    }
    return text;
}

CommandWord parseCommandWord(std::wstring_view word) {
    CommandWord parsed;
    for (; !word.empty(); word.remove_prefix(1)) {
        if (word.front() == L'\'')
            parsed.transparent = true;
        else if (word.front() == L'_')
            parsed.global = true;
        else if (word.front() != L'.')
            break;
    }
    parsed.name = word;
    return parsed;
}

bool CommandText::beginsWithCancel() const {
    return !m_text.empty() && isCancel(m_text.front());
}

bool CommandText::takeCancel() {
    if (!beginsWithCancel())
        return false;
    m_text.erase(0, 1);
    return true;
}

std::optional<std::wstring> CommandText::takeAnswer(bool blanksBelong, bool takeRest) {
    const auto endsAnswer = [blanksBelong](wchar_t character) {
        return character == L'\n' || character == L'\r' ||
               (!blanksBelong && (character == L' ' || character == L'\t'));
    };
    const auto end = std::find_if(m_text.begin(), m_text.end(), [&endsAnswer](wchar_t character) {
        return endsAnswer(character) || isCancel(character);
    });
    if (end == m_text.end() && (!takeRest || m_text.empty()))
        return {};
    if (end != m_text.end() && isCancel(*end)) {
        m_text.erase(m_text.begin(), end);
        return {};
    }
    std::wstring answer(m_text.begin(), end);
    m_text.erase(m_text.begin(), end == m_text.end() ? end : end + 1);
    return answer;
}

}  // namespace workbench
