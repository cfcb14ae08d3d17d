#include "workbench/desktop/panes/journal_model.h"

#include "workbench/core/step_text.h"
#include "workbench/desktop/look/text.h"

#include <algorithm>
#include <iterator>

namespace workbench::desktop {

void JournalModel::append(std::vector<JournalRecord> records) {
    if (records.size() > kMostRows)
        records.erase(records.begin(), records.end() - kMostRows);
    if (records.empty())
        return;
    const std::size_t all = m_records.size() + records.size();
    if (all > kMostRows) {
        const auto gone = static_cast<int>(all - kMostRows);
        beginRemoveRows({}, 0, gone - 1);
        m_records.erase(m_records.begin(), m_records.begin() + gone);
        endRemoveRows();
    }
    const auto first = static_cast<int>(m_records.size());
    beginInsertRows({}, first, first + static_cast<int>(records.size()) - 1);
    std::move(records.begin(), records.end(), std::back_inserter(m_records));
    endInsertRows();
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
    return parent.isValid() ? 0 : kColumnCount;
}

QVariant JournalModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    const JournalRecord& shown = record(index.row());
    switch (index.column()) {
    case kTime:
        return QVariant::fromValue<qlonglong>(shown.time);
    case kKind:
        return toQt(std::string_view(shown.kind));
    default:
        return toQt(std::string_view(describeStep(shown)));
    }
}

QVariant JournalModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case kTime:
        return QStringLiteral("ms");
    case kKind:
        return QStringLiteral("Kind");
    default:
        return QStringLiteral("What happened");
    }
}

JournalFilter::JournalFilter(JournalModel& model) : m_model(model) {
    setSourceModel(&model);
}

void JournalFilter::setKindShown(const QString& kind, bool shown) {
    if (shown)
        m_hiddenKinds.remove(kind);
    else
        m_hiddenKinds.insert(kind);
    invalidateFilter();
}

void JournalFilter::setText(const QString& text) {
    m_text = text;
    invalidateFilter();
}

bool JournalFilter::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const {
    const JournalRecord& record = m_model.record(row);
    if (m_hiddenKinds.contains(toQt(std::string_view(record.kind))))
        return false;
    return m_text.isEmpty() ||
           toQt(std::string_view(describeStep(record))).contains(m_text, Qt::CaseInsensitive);
}

}  // namespace workbench::desktop
