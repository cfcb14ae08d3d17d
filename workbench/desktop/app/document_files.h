#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace workbench {
class Document;
class Editor;
}  // namespace workbench

namespace workbench::desktop {

/// The files of the open documents, and what they hold.
class DocumentFiles {
public:
    explicit DocumentFiles(Editor& editor) : m_editor(editor) {}

    /// Opens a drawing, or brings it to the front. Throws `InputError` for a file that can't be taken.
    void open(const std::filesystem::path& file);
    /// Makes a document with a new drawing, under a name of its own.
    void create();
    /// Takes in documents that were opened otherwise, and forgets those that are gone.
    void follow();
    /// A document that was opened otherwise has this file.
    void setFile(const Document& document, const std::filesystem::path& file);

    /// Where a document is saved; empty while it has no file.
    std::filesystem::path fileOf(const Document& document) const;
    /// Whether a document differs from its file, or from the new drawing that it began with.
    bool isChanged(Document& document) const;
    /// Saves a document to a file, which is its own from then on. Throws `InputError`.
    void save(Document& document, const std::filesystem::path& file);
    /// Where files were last opened or saved; empty at first.
    const std::filesystem::path& lastFolder() const { return m_lastFolder; }
    void setLastFolder(const std::filesystem::path& folder) { m_lastFolder = folder; }

private:
    struct Entry {
        std::filesystem::path file;  // empty: none
        std::string saved;           // the drawing's text as the file has it
    };

    Editor& m_editor;
    std::map<const Document*, Entry> m_entries;
    std::filesystem::path m_lastFolder;
};

}  // namespace workbench::desktop
