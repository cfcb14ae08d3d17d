#pragma once

#include <QObject>
#include <QTimer>

class QString;

namespace workbench::desktop {

class JournalPane;
class Pump;

/// Tells the journal's pane what the user's hands begin, on any widget, and when that has ended: with
/// the release, or behind it with the idle tick that follows what came of it.
class GestureWatch final : public QObject {
public:
    GestureWatch(Pump& pump, JournalPane& journal);
    ~GestureWatch() override;

    // QObject:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void begin(const QString& title);
    void release();
    void endIfDone();

    Pump& m_pump;
    JournalPane& m_journal;
    QTimer m_afterRelease;
    bool m_held = false;  // a button or a key, since the last gesture began
};

}  // namespace workbench::desktop
