#include "workbench/editor/document_list.h"

#include "workbench/base/text.h"
#include "workbench/drawing/drawing_reader.h"
#include "workbench/editor/command_processor.h"
#include "workbench/editor/editor.h"
#include "workbench/editor/system_variables.h"

#include <algorithm>
#include <stdexcept>

namespace workbench {

DocumentList::~DocumentList() = default;

Document& DocumentList::create(std::wstring name) {
    if (find(name) != nullptr)
        throw std::invalid_argument("a document \"" + toUtf8(name) + "\" is open already");
    return adopt(std::make_unique<Document>(m_editor, std::move(name),
                                            drawing::makeNewDrawing(++m_lastSerial)));
}

Document& DocumentList::open(const std::filesystem::path& file) {
    const std::wstring name = toWide(file.filename().string());
    if (Document* present = find(name); present != nullptr) {
        activate(*present);
        return *present;
    }
    std::unique_ptr<drawing::Drawing> drawing = drawing::readDrawing(file, m_lastSerial + 1);
    ++m_lastSerial;
    return adopt(std::make_unique<Document>(m_editor, name, std::move(drawing)));
}

Document& DocumentList::adopt(std::unique_ptr<Document> document) {
    Document& opened = *document;
    m_documents.push_back(std::move(document));
    m_reactors.notify([&opened](VxApDocManagerReactor& to) { to.documentCreated(&opened); });
    activate(opened);
    return opened;
}

void DocumentList::activate(Document& document) {
    if (m_active == &document)
        return;
    m_reactors.notify(
        [&document](VxApDocManagerReactor& to) { to.documentToBeActivated(&document); });
    m_active = &document;
    makeCurrent(&document);
}

void DocumentList::makeCurrent(Document* document) {
    if (m_current == document)
        return;
    m_current = document;
    m_editor.variables().announceOutsideChanges();
    if (document != nullptr)
        m_reactors.notify(
            [document](VxApDocManagerReactor& to) { to.documentBecameCurrent(document); });
}

void DocumentList::close(Document& document) {
    m_reactors.notify(
        [&document](VxApDocManagerReactor& to) { to.documentToBeDestroyed(&document); });
    document.processor().abandon();

    const auto place = std::find_if(
        m_documents.begin(), m_documents.end(),
        [&document](const std::unique_ptr<Document>& open) { return open.get() == &document; });
    const std::wstring name = document.name();
    const bool wasActive = m_active == &document;
    if (wasActive)
        m_active = nullptr;
    if (m_current == &document)
        makeCurrent(nullptr);
    std::replace(m_scopes.begin(), m_scopes.end(), &document, static_cast<Document*>(nullptr));
    m_documents.erase(place);

    ++m_going;
    m_reactors.notify([&name](VxApDocManagerReactor& to) { to.documentDestroyed(name.c_str()); });
    --m_going;
    if (wasActive && m_active == nullptr && !m_documents.empty())
        activate(*m_documents.back());
}

Document* DocumentList::find(std::wstring_view name) const {
    for (const auto& document : m_documents) {
        if (equalNoCase(document->name(), name))
            return document.get();
    }
    return nullptr;
}

Document* DocumentList::findBySerial(std::uint32_t serial) const {
    for (const auto& document : m_documents) {
        if (document->data().serial() == serial)
            return document.get();
    }
    return nullptr;
}

Document* DocumentList::find(const VxApDocument* wanted) const {
    for (const auto& document : m_documents) {
        if (document.get() == wanted)
            return document.get();
    }
    return nullptr;
}

Document* DocumentList::find(const VxDbDatabase* database) const {
    for (const auto& document : m_documents) {
        if (&document->hostDatabase() == database)
            return document.get();
    }
    return nullptr;
}

std::vector<Document*> DocumentList::all() const {
    std::vector<Document*> documents;
    for (const auto& document : m_documents)
        documents.push_back(document.get());
    return documents;
}

CurrentDocument::CurrentDocument(DocumentList& documents, Document& document)
    : m_documents(documents) {
    m_documents.m_scopes.push_back(&document);
    m_documents.makeCurrent(&document);
}

CurrentDocument::~CurrentDocument() {
    std::vector<Document*>& scopes = m_documents.m_scopes;
    scopes.pop_back();
    const bool isInner = !scopes.empty() && scopes.back() != nullptr;
    m_documents.makeCurrent(isInner ? scopes.back() : m_documents.active());
}

}  // namespace workbench
