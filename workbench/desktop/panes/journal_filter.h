#pragma once

#include <QSet>
#include <QSortFilterProxyModel>

namespace workbench::desktop {

class JournalModel;

/// Of the journal's rows those of certain kinds with a certain text; at first all.
class JournalFilter final : public QSortFilterProxyModel {
public:
    /// The model is not owned.
    explicit JournalFilter(JournalModel& model);

    void setKindShown(const QString& kind, bool shown);
    /// Part of what happened, without regard to case; empty: all.
    void setText(const QString& text);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    JournalModel& m_model;
    QSet<QString> m_hiddenKinds;
    QString m_text;
};

}  // namespace workbench::desktop
