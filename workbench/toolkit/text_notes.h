#pragma once

#include "workbench/core/journal.h"
#include "workbench/toolkit/shown_texts.h"

#include <string>
#include <string_view>

namespace workbench {

/// The journal of the texts that the user sees.
class TextNotes {
public:
    /// Both must outlive it.
    TextNotes(Journal& journal, const ShownTexts& texts) : m_journal(journal), m_texts(texts) {}

    /// Notes a text ("balloon", "box" or "tip") with the number of the string resource that it came
    /// from, if it came from one, and the name of its owner, if it has one.
    void note(std::string_view kind, const std::wstring& text, const std::string& owner) const;

private:
    Journal& m_journal;
    const ShownTexts& m_texts;
};

}  // namespace workbench
