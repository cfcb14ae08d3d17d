#include "workbench/editor/document_list.h"

#include "workbench/base/text.h"
#include "workbench/base/turn.h"
#include "workbench/drawing/drawing_reader.h"
#include "workbench/editor/command_processor.h"
#include "workbench/editor/editor.h"
#include "workbench/editor/system_variables.h"

#include <algorithm>
#include <stdexcept>

namespace workbench {

namespace {

/// Marks a document as being closed, for the length of a scope.
class ClosingScope {
public:
    ClosingScope(std::vector<const Document*>& closing, const Document& document)
        : m_closing(closing),
          m_document(&document) {
        m_closing.push_back(m_document);
    }
    ~ClosingScope() { std::erase(m_closing, m_document); }
    ClosingScope(const ClosingScope&) = delete;
    ClosingScope& operator=(const ClosingScope&) = delete;

private:
    std::vector<const Document*>& m_closing;
    const Document* m_document;  // compared only: it may have ended
};

/// Counts a document that is going, for the length of a scope.
class GoingScope {
public:
    explicit GoingScope(int& going) : m_going(going) { ++m_going; }
    ~GoingScope() { --m_going; }
    GoingScope(const GoingScope&) = delete;
    GoingScope& operator=(const GoingScope&) = delete;

private:
    int& m_going;
};

}  // namespace

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
    const Turn turn;
    Document& opened = *document;
    m_documents.push_back(std::move(document));
    m_reactors.notify([&opened](VxApDocManagerReactor& to) { to.documentCreated(&opened); });
    activate(opened);
    return opened;
}

bool DocumentList::isOpen(const Document& document) const {
    return find(static_cast<const VxApDocument*>(&document)) != nullptr;
}

bool DocumentList::isClosing(const Document& document) const {
    return std::find(m_closing.begin(), m_closing.end(), &document) != m_closing.end();
}

void DocumentList::activate(Document& document) {
    if (m_active == &document || !isOpen(document) || isClosing(document))
        return;
    const Turn turn;
    announce(document);
    if (!isOpen(document) || isClosing(document))
        return;
    m_active = &document;
    makeCurrent(&document);
}

void DocumentList::announce(Document& document) {
    m_announced = &document;
    m_reactors.notify(
        [&document](VxApDocManagerReactor& to) { to.documentToBeActivated(&document); });
    m_announced = nullptr;
}

void DocumentList::makeCurrent(Document* document) {
    if (m_current == document)
        return;
    m_current = document;
    m_editor.variables().announceOutsideChanges();
    if (document != nullptr && m_current == document)
        m_reactors.notify(
            [document](VxApDocManagerReactor& to) { to.documentBecameCurrent(document); });
}

void DocumentList::close(Document& document) {
    if (!isOpen(document) || isClosing(document))
        return;
    const ClosingScope closing(m_closing, document);
    m_reactors.notify(
        [&document](VxApDocManagerReactor& to) { to.documentToBeDestroyed(&document); });
    document.processor().abandon();

    const std::wstring name = document.name();
    const bool wasActive = m_active == &document;
    if (wasActive)
        m_active = nullptr;
    if (m_current == &document)
        makeCurrent(nullptr);
    std::replace(m_scopes.begin(), m_scopes.end(), &document, static_cast<Document*>(nullptr));
    std::unique_ptr<Document> closed = take(document);
    closed->data().sayGoodbye();
    Turn::keep(std::move(closed));

    tellDestroyed(name);
    if (wasActive && m_active == nullptr && !m_documents.empty())
        activate(*m_documents.back());
}

std::unique_ptr<Document> DocumentList::take(Document& document) {
    const auto place = std::find_if(
        m_documents.begin(), m_documents.end(),
        [&document](const std::unique_ptr<Document>& open) { return open.get() == &document; });
    if (m_announced == &document)
        m_announced = nullptr;
    std::unique_ptr<Document> taken = std::move(*place);
    m_documents.erase(place);
    return taken;
}

/// Meanwhile the document still counts.
void DocumentList::tellDestroyed(const std::wstring& name) {
    const GoingScope going(m_going);
    m_reactors.notify([&name](VxApDocManagerReactor& to) { to.documentDestroyed(name.c_str()); });
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
    const bool isOpen = m_documents.isOpen(document);
    m_documents.m_scopes.push_back(isOpen ? &document : nullptr);
    if (isOpen)
        m_documents.makeCurrent(&document);
}

CurrentDocument::~CurrentDocument() {
    std::vector<Document*>& scopes = m_documents.m_scopes;
    scopes.pop_back();
    const bool isInner = !scopes.empty() && scopes.back() != nullptr;
    m_documents.makeCurrent(isInner ? scopes.back() : m_documents.active());
}

}  // namespace workbench
