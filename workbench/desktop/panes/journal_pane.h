#pragma once

#include "workbench/core/journal.h"
#include "workbench/desktop/panes/gesture_roads.h"
#include "workbench/desktop/panes/journal_filter.h"
#include "workbench/desktop/panes/journal_model.h"

#include <QTimer>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <vector>

class QHBoxLayout;
class QMenu;
class QPushButton;
class QTableView;
class QToolButton;

namespace workbench::desktop {

/// Shows the journal as it grows, with the newest record below. It can be filtered, held, copied and
/// saved. While it is hidden, records are only kept.
class JournalPane final : public QWidget {
public:
    /// The journal must outlive the pane.
    explicit JournalPane(Journal& journal);

    /// Takes over now what has come; otherwise that is done when the event loop comes round.
    void takeOver();
    /// Holds the pane, or lets it go on with what has come meanwhile.
    void setPaused(bool paused);
    /// Which rows are on show.
    JournalFilter& filter() { return m_filter; }
    /// The selected rows, or all on show, as lines of text.
    QString copied() const;
    /// Writes the rows on show as JSON lines. False, with a message in `error`, if the file can't be
    /// written.
    bool saveTo(const QString& path, QString& error) const;

    /// Tells whether what happens now is only an idle tick's: such calls and messages are left out,
    /// unless they are asked for.
    void setIsIdle(std::function<bool()> isIdle) { m_isIdle = std::move(isIdle); }
    void setIdleShown(bool shown) { m_idleShown = shown; }
    /// A gesture of the user's begins: from now on records are those of its road.
    void beginGesture(const QString& title);
    /// What happens from now on is no longer on its road. Nothing if none is under way.
    void endGesture();
    /// Shows the road of each gesture as a group, in place of the table.
    void setRoadsShown(bool shown);
    GestureRoads& roads() { return *m_roads; }
    /// Shows the records of all kinds, or of none.
    void setAllKinds(bool shown);

    /// Told in one message what could not be done.
    void setOnFailure(std::function<void(const QString&)> told) { m_onFailure = std::move(told); }

protected:
    void showEvent(QShowEvent* event) override;

private:
    QHBoxLayout* makeControls();
    QTableView* makeTable();
    QPushButton* makeKindMenu();
    void note(const JournalRecord& record);
    bool isNoise(const JournalRecord& record) const;
    void showWaiting();
    void save();
    /// The records of the selected rows, or of all on show, in their order.
    std::vector<const JournalRecord*> chosenRecords(bool onlySelected) const;

    Journal& m_journal;
    JournalModel m_model;
    JournalFilter m_filter{m_model};
    QToolButton* m_pause = nullptr;
    QTableView* m_table;
    QTimer m_batch;                        // so that a burst of records is one change of the table
    std::vector<JournalRecord> m_fresh;    // since the event loop came round
    std::vector<JournalRecord> m_waiting;  // to be shown once the pane is on show and not held
    bool m_paused = false;
    bool m_follows = true;  // the end stays in view; until the user scrolls up
    bool m_idleShown = false;
    std::function<bool()> m_isIdle;
    QMenu* m_kinds = nullptr;
    GestureRoads* m_roads;
    std::uint64_t m_lastNumber = 0;  // of the newest record
    std::function<void(const QString&)> m_onFailure;
    Journal::Listening m_listening;
};

}  // namespace workbench::desktop
