#include "workbench/editor/editor.h"

#include "workbench/base/text.h"
#include "workbench/editor/command_processor.h"

#include <utility>

namespace workbench {

Editor::Editor(Journal& journal, Answers& answers, ProfileValues& profileValues,
               SystemRegistry& registry)
    : m_journal(journal),
      m_answers(answers),
      m_profileValues(profileValues),
      m_objects(*this, registry) {
    // From now on a profile that brings other values is a change.
    m_variables.announceOutsideChanges();
}

void Editor::pump() {
    for (Document* document : m_documents.all()) {
        // A command that ran in an earlier document may have closed this one.
        if (m_documents.find(document) != nullptr)
            document->processor().pump();
    }
    m_variables.announceOutsideChanges();
}

/// A document that is made while a gesture lasts has no part in it.
void Editor::beginGesture(drawing::UndoLog::Gesture gesture) {
    endGesture();
    m_inGesture = m_documents.all();
    for (Document* document : m_inGesture)
        document->beginGesture(gesture);
}

void Editor::endGesture() {
    for (Document* document : std::exchange(m_inGesture, {})) {
        if (m_documents.find(document) != nullptr)
            document->endGesture();
    }
}

void Editor::interruptGesture() {
    for (Document* document : m_documents.all())
        document->interruptGesture();
}

void Editor::print(const Document& document, std::wstring_view text) {
    m_journal.add("output", {{"text", toUtf8(text)}, {"document", toUtf8(document.name())}});
}

bool Editor::type(std::wstring_view text) {
    interruptGesture();
    Document* document = m_documents.current();
    if (document != nullptr)
        document->processor().type(text);
    return document != nullptr;
}

bool Editor::beginCommand(std::wstring_view name) {
    Document* document = m_documents.current();
    if (document != nullptr)
        document->processor().beginScripted(name);
    return document != nullptr;
}

bool Editor::finishCommand(CommandState outcome) {
    Document* document = m_documents.current();
    return document != nullptr && document->processor().finish(outcome);
}

bool Editor::set(std::wstring_view name, const Value& value) {
    return m_variables.write(name, value, VariableWriter::Host);
}

bool Editor::undo() {
    return runNow(L"_u");
}

bool Editor::redo() {
    return runNow(L"_redo");
}

bool Editor::runNow(std::wstring_view text) {
    interruptGesture();
    Document* document = m_documents.current();
    if (document != nullptr)
        document->processor().runNow(text);
    return document != nullptr;
}

}  // namespace workbench
