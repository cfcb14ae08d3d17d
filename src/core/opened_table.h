#pragma once

#include <hostapi/vxdb18/database.h>

/// A symbol table of a drawing that is open for reading while this lives; null if it can't be opened.
template <class Table>
class OpenedTable {
public:
    explicit OpenedTable(VxDbDatabase& database) {
        if (database.getSymbolTable(m_table, VxDbOpenMode::kForRead) != Zorq::eOk)
            m_table = nullptr;
    }
    OpenedTable(const OpenedTable&) = delete;
    OpenedTable& operator=(const OpenedTable&) = delete;
    ~OpenedTable() {
        if (m_table != nullptr)
            m_table->close();
    }

    const Table* get() const { return m_table; }

private:
    Table* m_table = nullptr;  // the host's; ours to close
};
