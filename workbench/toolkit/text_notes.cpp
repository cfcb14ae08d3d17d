#include "workbench/toolkit/text_notes.h"

#include "workbench/base/text.h"

#include <optional>

namespace workbench {

void TextNotes::note(std::string_view kind, const std::wstring& text,
                     const std::string& owner) const {
    if (!m_journal.isRecording())
        return;
    const std::optional<int> number = m_texts.resourceNumberOf(text);
    m_journal.add(kind, {{"text", toUtf8(text)},
                         {"string", number ? Value(*number) : Value()},
                         {"owner", owner.empty() ? Value() : Value(owner)}});
}

}  // namespace workbench
