#include "workbench/desktop/app/document_files.h"

#include "workbench/drawing/drawing_writer.h"
#include "workbench/editor/editor.h"

#include <algorithm>

namespace workbench::desktop {

void DocumentFiles::open(const std::filesystem::path& file) {
    Document& opened = m_editor.documents().open(file);
    follow();
    setFile(opened, file);
    m_lastFolder = std::filesystem::absolute(file).parent_path();
}

void DocumentFiles::create() {
    DocumentList& documents = m_editor.documents();
    int number = 1;
    while (documents.find(L"Drawing" + std::to_wstring(number)) != nullptr)
        ++number;
    documents.create(L"Drawing" + std::to_wstring(number));
}

void DocumentFiles::follow() {
    const std::vector<Document*> open = m_editor.documents().all();
    std::erase_if(m_entries, [&open](const auto& entry) {
        return std::find(open.begin(), open.end(), entry.first) == open.end();
    });
    for (Document* document : open) {
        if (m_entries.count(document) == 0)
            m_entries[document].saved = drawing::drawingText(document->drawing());
    }
}

void DocumentFiles::setFile(const Document& document, const std::filesystem::path& file) {
    const auto entry = m_entries.find(&document);
    if (entry != m_entries.end())
        entry->second.file = std::filesystem::absolute(file);
}

std::filesystem::path DocumentFiles::fileOf(const Document& document) const {
    const auto entry = m_entries.find(&document);
    return entry == m_entries.end() ? std::filesystem::path() : entry->second.file;
}

bool DocumentFiles::isChanged(Document& document) const {
    const auto entry = m_entries.find(&document);
    return entry != m_entries.end() &&
           entry->second.saved != drawing::drawingText(document.drawing());
}

void DocumentFiles::save(Document& document, const std::filesystem::path& file) {
    drawing::saveDrawing(document.drawing(), file);
    m_entries[&document] = {std::filesystem::absolute(file),
                            drawing::drawingText(document.drawing())};
    m_lastFolder = std::filesystem::absolute(file).parent_path();
}

}  // namespace workbench::desktop
