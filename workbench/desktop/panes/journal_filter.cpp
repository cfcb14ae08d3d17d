#include "workbench/desktop/panes/journal_filter.h"

#include "workbench/desktop/panes/journal_model.h"

namespace workbench::desktop {

JournalFilter::JournalFilter(JournalModel& model) : m_model(model) {
    setSourceModel(&model);
}

void JournalFilter::setKindShown(const QString& kind, bool shown) {
    if (shown)
        m_hiddenKinds.remove(kind);
    else
        m_hiddenKinds.insert(kind);
    invalidateRowsFilter();
}

void JournalFilter::setText(const QString& text) {
    m_text = text;
    invalidateRowsFilter();
}

bool JournalFilter::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const {
    const auto textOf = [this, row](int column) {
        return m_model.index(row, column).data().toString();
    };
    if (!m_hiddenKinds.isEmpty() && m_hiddenKinds.contains(textOf(JournalModel::KindColumn)))
        return false;
    return m_text.isEmpty() ||
           textOf(JournalModel::TextColumn).contains(m_text, Qt::CaseInsensitive);
}

}  // namespace workbench::desktop
