#include "controls/doc_lock.h"

#include "core/resources.h"
#include "core/string_ids.h"

#include <hostapi/zorq/documents.h>

namespace {

constexpr const wchar_t* kGlobalCommandName = L"Dashboard Operation";

}  // namespace

VxDaDocLock::VxDaDocLock() {
    VxApDocManager* documents = vxDocManagerPtr();
    VxApDocument* document = documents == nullptr ? nullptr : documents->mdiActiveDocument();
    if (document == nullptr)
        return;
    const VxString localName = loadDashboardString(kStrLocalLockCommand);
    if ((document->lockMode() & kDocLockWrite) != 0) {
        m_status = Zorq::eOk;
        return;
    }
    m_status = documents->lockDocument(document, kDocLockWrite, kGlobalCommandName,
                                       localName.c_str(), false);
    if (m_status == Zorq::eOk)
        m_document = document;
}

VxDaDocLock::~VxDaDocLock() {
    VxApDocManager* documents = vxDocManagerPtr();
    if (m_document != nullptr && documents != nullptr)
        documents->unlockDocument(m_document);
    m_document = nullptr;
}
