#pragma once

#include <QWidget>

class QLabel;

namespace workbench {
class Workbench;
}

namespace workbench::desktop {

/// What the status bar tells of the session: document, space, running command, clean screen.
class StatusFields final : public QWidget {
public:
    StatusFields();

    /// Takes over the session's state; only what differs is drawn again.
    void refresh(Workbench& workbench);

private:
    QLabel* m_document;
    QLabel* m_space;
    QLabel* m_command;
    QLabel* m_cleanScreen;
};

}  // namespace workbench::desktop
