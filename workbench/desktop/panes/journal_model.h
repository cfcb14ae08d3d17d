#pragma once

#include "workbench/core/journal.h"

#include <QAbstractTableModel>
#include <cstddef>
#include <deque>
#include <vector>

namespace workbench::desktop {

/// Records of the journal as rows: time, kind, what happened. The oldest go when there are too many.
class JournalModel final : public QAbstractTableModel {
public:
    enum Column { TimeColumn, KindColumn, TextColumn, ColumnCount };
    static constexpr std::size_t kMostRows = 20'000;

    /// Adds rows at the end, all at once.
    void append(std::vector<JournalRecord> records);
    void clear();
    /// The record of a row that is there.
    const JournalRecord& record(int row) const { return m_records[static_cast<std::size_t>(row)]; }

    // QAbstractTableModel:
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    /// Texts are made when they are asked for: rows that nobody sees cost none.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    void makeRoom(std::size_t coming);

    std::deque<JournalRecord> m_records;  // oldest first
};

}  // namespace workbench::desktop
