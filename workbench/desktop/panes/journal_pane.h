#pragma once

#include "workbench/desktop/panes/journal_model.h"

#include <QWidget>

#include <functional>

class QTableView;
class QToolButton;

namespace workbench::desktop {

/// Shows the journal as it grows, with the newest record below. It can be filtered, held, copied and
/// saved.
class JournalPane final : public QWidget {
public:
    explicit JournalPane(Journal& journal);

    /// Takes what the journal has gathered. What comes while the pane is held is shown at its end.
    void takeOver();
    /// Holds the pane, or lets it go on.
    void setPaused(bool paused);
    /// Writes the rows on show as JSON lines. False, with the reason, if the file can't be written.
    bool saveTo(const QString& file, QString& reason) const;
    /// The selected rows, or all on show, as lines of text.
    QString copied() const;
    JournalFilter& filter() { return m_filter; }

    /// Told what could not be done.
    void setOnFailure(std::function<void(const QString&)> told) { m_onFailure = std::move(told); }

private:
    QToolButton* addKindMenu();
    void save();
    bool isAtEnd() const;

    Journal& m_journal;
    JournalModel m_model;
    JournalFilter m_filter{m_model};
    QTableView* m_table;
    QToolButton* m_pause = nullptr;
    std::vector<JournalRecord> m_waiting;  // that came while the pane is held
    bool m_paused = false;
    std::function<void(const QString&)> m_onFailure;
};

}  // namespace workbench::desktop
