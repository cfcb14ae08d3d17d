#pragma once

#include "workbench/core/journal.h"

#include <QAbstractTableModel>
#include <QSet>
#include <QSortFilterProxyModel>

#include <deque>
#include <vector>

namespace workbench::desktop {

/// Records of the journal as rows: time, kind, what happened. The oldest go when there are too many.
class JournalModel final : public QAbstractTableModel {
public:
    enum Column { kTime, kKind, kText, kColumnCount };
    static constexpr std::size_t kMostRows = 20'000;

    void append(std::vector<JournalRecord> records);
    void clear();
    const JournalRecord& record(int row) const { return m_records[static_cast<std::size_t>(row)]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    /// Texts are made when they are asked for: rows that nobody sees cost none.
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::deque<JournalRecord> m_records;
};

/// Of the journal's rows those of certain kinds with a certain text.
class JournalFilter final : public QSortFilterProxyModel {
public:
    explicit JournalFilter(JournalModel& model);

    void setKindShown(const QString& kind, bool shown);
    /// Without regard to case; empty: all.
    void setText(const QString& text);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    JournalModel& m_model;
    QSet<QString> m_hiddenKinds;
    QString m_text;
};

}  // namespace workbench::desktop
