#include "workbench/core/host_call.h"
#include "workbench/editor/command_processor.h"
#include "workbench/editor/document_list.h"
#include "workbench/editor/editor.h"
#include "workbench/editor/statuses.h"
#include "workbench/host/workbench.h"
#include "workbench/toolkit/toolkit.h"

#include <hostapi/zorq/documents.h>

namespace workbench {

namespace {

constexpr UINT kWarningIcon = 48;

void tellLocked(const Document& document, const wchar_t* command) {
    const std::wstring name = command == nullptr ? std::wstring() : command;
    Workbench::current().toolkit().boxes().show(
        document.name() + L" is locked: " + name + L" can't be done now.", kWarningIcon, {});
}

}  // namespace

int DocumentList::documentCount() const {
    HostCall call("VxApDocManager::documentCount");
    return call.returns(call.failed() ? call.status(0) : count());
}

VxApDocument* DocumentList::curDocument() const {
    HostCall call("VxApDocManager::curDocument");
    VxApDocument* document = call.failed() ? nullptr : m_current;
    return call.returns(document);
}

VxApDocument* DocumentList::mdiActiveDocument() const {
    HostCall call("VxApDocManager::mdiActiveDocument");
    VxApDocument* document = call.failed() ? nullptr : m_active;
    return call.returns(document);
}

void DocumentList::addReactor(VxApDocManagerReactor* reactor) {
    HostCall call("VxApDocManager::addReactor", {reactor});
    if (!call.failed())
        m_reactors.add(reactor);
}

void DocumentList::removeReactor(VxApDocManagerReactor* reactor) {
    HostCall call("VxApDocManager::removeReactor", {reactor});
    if (!call.failed())
        m_reactors.remove(reactor);
}

Zorq::ErrorStatus DocumentList::lockDocument(VxApDocument* document, int mode,
                                             const wchar_t* globalCommand,
                                             const wchar_t* localCommand, bool prompt) {
    HostCall call("VxApDocManager::lockDocument",
                  {document, mode, globalCommand, localCommand, prompt});
    if (call.failed())
        return call.returns(call.status(kNotApplicable));
    Document* locked = find(document);
    if (locked == nullptr)
        return call.returns(kNoDocument);
    const Zorq::ErrorStatus status = locked->locks().lock(mode, this);
    if (status == kLockViolation && prompt)
        tellLocked(*locked, localCommand);
    return call.returns(status);
}

Zorq::ErrorStatus DocumentList::unlockDocument(VxApDocument* document) {
    HostCall call("VxApDocManager::unlockDocument", {document});
    if (call.failed())
        return call.returns(call.status(kNotApplicable));
    Document* locked = find(document);
    if (locked == nullptr)
        return call.returns(kNoDocument);
    return call.returns(locked->locks().unlock(this) ? Zorq::eOk : kNoLock);
}

Zorq::ErrorStatus DocumentList::sendToCommandLine(VxApDocument* document, const wchar_t* text,
                                                  bool activate, bool wrapUpInactive, bool echo) {
    HostCall call("VxApDocManager::sendToCommandLine",
                  {document, text, activate, wrapUpInactive, echo});
    if (call.failed())
        return call.returns(call.status(kNotApplicable));
    Document* receiver = find(document);
    if (receiver == nullptr || text == nullptr)
        return call.returns(receiver == nullptr ? kNoDocument : kInvalidInput);
    receiver->processor().sendLine(text, activate, wrapUpInactive, echo);
    return call.returns(Zorq::eOk);
}

}  // namespace workbench

namespace {

workbench::DocumentList& documents() {
    return workbench::Workbench::current().editor().documents();
}

/// Locks a document for a scope of a module, in the host's own choice of a mode for 0. The document if
/// the scope has to be ended; null for a mode that locks nothing, and for no document. What is written
/// meanwhile is one step of undo.
workbench::Document* lockScope(workbench::Document* document, int mode, const void* scope) {
    if (document == nullptr)
        return nullptr;
    const int taken = mode == 0 ? workbench::DocumentLocks::kAutoWrite : mode;
    const Zorq::ErrorStatus status = document->locks().lockScope(taken, scope);
    if (status != Zorq::eOk && status != workbench::kLockViolation)
        return nullptr;
    document->data().undoLog().beginGroup(std::string());
    return document;
}

}  // namespace

VxApDocManager* vxDocManagerPtr() {
    workbench::HostCall call("vxDocManagerPtr");
    VxApDocManager* manager = call.failed() ? nullptr : &documents();
    return call.returns(manager);
}

VxAxDocLock::VxAxDocLock(VxDbDatabase* database, int mode) {
    workbench::HostCall call("VxAxDocLock::VxAxDocLock", {database, mode});
    if (!call.failed())
        m_document = lockScope(documents().find(database), mode, this);
}

VxAxDocLock::VxAxDocLock(VxApDocument* document, int mode) {
    workbench::HostCall call("VxAxDocLock::VxAxDocLock", {document, mode});
    if (!call.failed())
        m_document = lockScope(documents().find(document), mode, this);
}

VxAxDocLock::~VxAxDocLock() {
    workbench::HostCall call("VxAxDocLock::~VxAxDocLock");
    workbench::Document* document = documents().find(m_document);
    if (document != nullptr && document->locks().unlock(this))
        document->data().undoLog().endGroup();
}
