#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;

namespace workbench {
class Workbench;
}

namespace workbench::desktop {

/// What the status bar tells of the session: document, space, running command, clean screen; and,
/// ahead of them, a message for a while.
class StatusFields final : public QWidget {
public:
    StatusFields();

    /// Takes over the session's state; only what differs is drawn again.
    void refresh(Workbench& workbench);
    /// Shows a message for `kMessageMs`, in place of the one before.
    void showMessage(const QString& text);
    /// Takes the message away before its time.
    void endMessage();

    static constexpr int kMessageMs = 8000;

private:
    QLabel* m_message;
    QLabel* m_document;
    QLabel* m_space;
    QLabel* m_command;
    QLabel* m_cleanScreen;
    QTimer m_messageEnd;
};

}  // namespace workbench::desktop
