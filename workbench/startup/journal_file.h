#pragma once

#include "workbench/core/journal.h"

#include <filesystem>
#include <fstream>

namespace workbench {

/// The file that the journal is written to, open while this lives.
class JournalFile {
public:
    /// An empty name stands for no file. Throws `InputError` if it can't be written.
    JournalFile(Journal& journal, const std::filesystem::path& file);
    JournalFile(const JournalFile&) = delete;
    JournalFile& operator=(const JournalFile&) = delete;
    ~JournalFile();

private:
    Journal& m_journal;
    std::ofstream m_stream;
};

}  // namespace workbench
