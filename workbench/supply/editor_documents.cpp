#include "workbench/core/host_call.h"
#include "workbench/editor/command_processor.h"
#include "workbench/editor/document_list.h"
#include "workbench/editor/editor.h"
#include "workbench/editor/statuses.h"
#include "workbench/host/workbench.h"

#include <hostapi/zorq/documents.h>

namespace workbench {

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
    return call.returns(locked->locks().lock(mode, this) ? Zorq::eOk : kInvalidInput);
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

/// Locks a document for an owner. What is written meanwhile is one step of undo. Null if nothing was
/// locked.
workbench::Document* lock(workbench::Document* document, int mode, const void* owner) {
    const int chosen = mode == 0 ? workbench::DocumentLocks::kAutoWrite : mode;
    if (document == nullptr || !document->locks().lock(chosen, owner))
        return nullptr;
    document->data().undoLog().beginGroup(std::string());
    return document;
}

}  // namespace

VxApDocManager* vxDocManagerPtr() {
    workbench::HostCall call("vxDocManagerPtr");
    VxApDocManager* manager =
        call.failed() ? nullptr : &workbench::Workbench::current().editor().documents();
    return call.returns(manager);
}

VxAxDocLock::VxAxDocLock(VxDbDatabase* database, int mode) {
    workbench::HostCall call("VxAxDocLock::VxAxDocLock", {database, mode});
    if (!call.failed())
        m_document =
            lock(workbench::Workbench::current().editor().documents().find(database), mode, this);
}

VxAxDocLock::VxAxDocLock(VxApDocument* document, int mode) {
    workbench::HostCall call("VxAxDocLock::VxAxDocLock", {document, mode});
    if (!call.failed())
        m_document =
            lock(workbench::Workbench::current().editor().documents().find(document), mode, this);
}

VxAxDocLock::~VxAxDocLock() {
    workbench::HostCall call("VxAxDocLock::~VxAxDocLock");
    workbench::Document* document =
        workbench::Workbench::current().editor().documents().find(m_document);
    if (document != nullptr && document->locks().unlock(this))
        document->data().undoLog().endGroup();
}
