#include "workbench/editor/editor.h"

#include "workbench/editor/command_processor.h"

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

bool Editor::type(std::wstring_view text) {
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
    Document* document = m_documents.current();
    if (document != nullptr)
        document->processor().runNow(text);
    return document != nullptr;
}

}  // namespace workbench
