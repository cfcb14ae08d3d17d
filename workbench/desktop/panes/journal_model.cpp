#include "workbench/desktop/panes/journal_model.h"

#include "workbench/core/step_text.h"
#include "workbench/desktop/look/text.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace workbench::desktop {

namespace {

template <class Iterator>
Iterator after(Iterator place, std::size_t count) {
    return place + static_cast<std::ptrdiff_t>(count);
}

}  // namespace

void JournalModel::append(std::vector<JournalRecord> records) {
    if (records.empty())
        return;
    const std::size_t coming = std::min(records.size(), kMostRows);
    makeRoom(coming);
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(coming) - 1);
    std::move(after(records.begin(), records.size() - coming), records.end(),
              std::back_inserter(m_records));
    endInsertRows();
}

void JournalModel::makeRoom(std::size_t coming) {
    const std::size_t needed = m_records.size() + coming;
    if (needed <= kMostRows)
        return;
    const std::size_t going = needed - kMostRows;
    beginRemoveRows({}, 0, static_cast<int>(going) - 1);
    m_records.erase(m_records.begin(), after(m_records.begin(), going));
    endRemoveRows();
}

void JournalModel::clear() {
    beginResetModel();
    m_records.clear();
    endResetModel();
}

int JournalModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_records.size());
}

int JournalModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant JournalModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    if (role == Qt::TextAlignmentRole && index.column() == TimeColumn)
        return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter));
    if (role != Qt::DisplayRole)
        return {};
    const JournalRecord& shown = record(index.row());
    switch (index.column()) {
    case TimeColumn:
        return QString::number(shown.time);
    case KindColumn:
        return toQt(std::string_view(shown.kind));
    default:
        return toQt(std::string_view(describeEvent(shown)));
    }
}

QVariant JournalModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    switch (section) {
    case TimeColumn:
        return QStringLiteral("Time (ms)");
    case KindColumn:
        return QStringLiteral("Kind");
    default:
        return QStringLiteral("What happened");
    }
}

}  // namespace workbench::desktop
