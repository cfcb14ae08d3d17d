#include "workbench/script/session.h"

#include "workbench/editor/command_processor.h"
#include "workbench/editor/editor.h"
#include "workbench/startup/open_dashboard.h"
#include "workbench/windows/window_system.h"

#include <utility>

namespace workbench::script {

namespace {

constexpr const wchar_t* kFirstDocument = L"Drawing1";

}  // namespace

Session::Session(Workbench& workbench) : m_workbench(workbench) {
    m_listening = m_workbench.journal().addListener([this](const JournalRecord& record) {
        if (record.kind == "command" && !record.field("way").isNil())
            m_sent.push_back(record);
    });
}

void Session::settle() {
    do {
        m_workbench.windows().queue().runPosted();
        if (!isCommandRunning())
            m_workbench.editor().pump();
    } while (m_workbench.windows().queue().hasPosted());
}

void Session::runHost() {
    letHostRun(m_workbench);
}

bool Session::isCommandRunning() const {
    const Document* document = m_workbench.editor().documents().current();
    return document != nullptr && document->processor().isActive();
}

void Session::needDocument() {
    if (m_documentsMade)
        return;
    m_documentsMade = true;
    DocumentList& documents = m_workbench.editor().documents();
    if (!documents.all().empty())
        return;
    documents.create(kFirstDocument);
    settle();
}

void Session::noteGesture(const std::string& words) {
    m_workbench.journal().add("gesture", {{"text", words}});
}

std::vector<JournalRecord> Session::takeSent() {
    return std::exchange(m_sent, {});
}

void Session::noteListenerError(const std::string& text) {
    if (m_listenerError.empty())
        m_listenerError = text;
}

std::string Session::takeListenerError() {
    return std::exchange(m_listenerError, {});
}

}  // namespace workbench::script
