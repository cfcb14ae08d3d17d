#pragma once

#include "workbench/drawing/database/reactor_list.h"
#include "workbench/editor/document.h"

#include <hostapi/zorq/documents.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

/// The open documents, and the host's document manager.
///
/// The current document is the one that commands work in, the active one that whose window is in
/// front. They are the same except inside a `CurrentDocument` scope.
class DocumentList final : public VxApDocManager {
public:
    explicit DocumentList(Editor& editor) : m_editor(editor) {}
    DocumentList(const DocumentList&) = delete;
    DocumentList& operator=(const DocumentList&) = delete;
    /// Drops all documents without a word.
    ~DocumentList() override;

    /// Makes a document with a new drawing and activates it. The name must not be that of an open
    /// document; throws std::invalid_argument otherwise. A reactor may close it before the return:
    /// outside of a turn the result is then gone.
    Document& create(std::wstring name);
    /// Opens a drawing file and activates its document, which is named after the file. A file that
    /// is open already is only activated. Throws InputError for a file that can't be taken. The
    /// result may be gone as that of `create`.
    Document& open(const std::filesystem::path& file);
    /// Brings a document to the front.
    void activate(Document& document);
    /// Closes a document; what was typed or queued for it is dropped. If it was the active one, the
    /// one that was made last becomes active. Nothing happens if it is closed or being closed.
    ///
    /// Code that works on the document may close it: the object stays until the turn is over.
    void close(Document& document);

    /// The document of a name, without regard to case; null for none.
    Document* find(std::wstring_view name) const;
    /// The document that a drawing's serial belongs to; null for none.
    Document* findBySerial(std::uint32_t serial) const;
    /// The document behind a pointer of a module; null if it isn't open.
    Document* find(const VxApDocument* document) const;
    /// The document behind a database of a module; null if it isn't open.
    Document* find(const VxDbDatabase* database) const;

    Document* current() const { return m_current; }
    /// The document whose drawing modules are told to work on: the current one, or while its activation
    /// is announced the one to come.
    Document* working() const { return m_announced == nullptr ? m_current : m_announced; }
    Document* active() const { return m_active; }
    /// The open documents in the order of their making.
    std::vector<Document*> all() const;
    /// The count that modules see: a document that is going still counts while its end is told.
    int count() const { return static_cast<int>(m_documents.size()) + m_going; }

    /// The host's own units hear of the documents as modules do. The reactor is not owned.
    void watch(VxApDocManagerReactor& reactor) { m_reactors.add(&reactor); }
    void unwatch(VxApDocManagerReactor& reactor) { m_reactors.remove(&reactor); }

    // VxApDocManager:
    int documentCount() const override;
    VxApDocument* curDocument() const override;
    VxApDocument* mdiActiveDocument() const override;
    void addReactor(VxApDocManagerReactor* reactor) override;
    void removeReactor(VxApDocManagerReactor* reactor) override;
    Zorq::ErrorStatus lockDocument(VxApDocument* document, int mode, const wchar_t* globalCommand,
                                   const wchar_t* localCommand, bool prompt) override;
    Zorq::ErrorStatus unlockDocument(VxApDocument* document) override;
    Zorq::ErrorStatus sendToCommandLine(VxApDocument* document, const wchar_t* text, bool activate,
                                        bool wrapUpInactive, bool echo) override;

private:
    friend class CurrentDocument;

    Document& adopt(std::unique_ptr<Document> document);
    bool isOpen(const Document& document) const;
    bool isClosing(const Document& document) const;
    std::unique_ptr<Document> take(Document& document);
    void tellDestroyed(const std::wstring& name);
    /// Tells that a document is to be activated.
    void announce(Document& document);
    /// Makes a document current without activating it, with the event.
    void makeCurrent(Document* document);

    Editor& m_editor;
    std::vector<std::unique_ptr<Document>> m_documents;
    drawing::ReactorList<VxApDocManagerReactor> m_reactors;
    Document* m_current = nullptr;    // null: none is open
    Document* m_active = nullptr;     // null: none is open
    Document* m_announced = nullptr;  // to be activated; null while none is announced
    std::vector<Document*> m_scopes;  // of `CurrentDocument`, the innermost last; null: it went
    std::vector<const Document*> m_closing;  // still open, but on their way out
    int m_going = 0;                         // documents whose end is being told
    std::uint32_t m_lastSerial = 0;
};

/// Makes another document the current one for the length of a scope, while the active one stays:
/// so commands run in a document whose window is not in front.
class CurrentDocument {
public:
    CurrentDocument(DocumentList& documents, Document& document);
    CurrentDocument(const CurrentDocument&) = delete;
    CurrentDocument& operator=(const CurrentDocument&) = delete;
    /// Goes back to the document of the scope around it, or to the active one.
    ~CurrentDocument();

private:
    DocumentList& m_documents;
};

}  // namespace workbench
