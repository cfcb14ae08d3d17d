#include "workbench/startup/journal_file.h"

#include "workbench/base/input_error.h"

namespace workbench {

JournalFile::JournalFile(Journal& journal, const std::filesystem::path& file) : m_journal(journal) {
    if (file.empty())
        return;
    m_stream.open(file, std::ios::binary | std::ios::trunc);
    if (!m_stream)
        throw InputError(file.string(), "the journal can't be written there");
    m_journal.writeTo(&m_stream);
}

JournalFile::~JournalFile() {
    m_journal.flush();
    m_journal.writeTo(nullptr);
}

}  // namespace workbench
