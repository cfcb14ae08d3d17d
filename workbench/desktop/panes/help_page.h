#pragma once

#include "workbench/core/journal.h"

#include <QPointer>
#include <QTextBrowser>
#include <QTimer>

namespace workbench::desktop {

/// The page about the dashboard, in a window of its own. It opens whenever the host's help is asked
/// for, by its command or by the dashboard.
class HelpPage {
public:
    /// Both must outlive the page; it stands before the owner.
    HelpPage(Journal& journal, QWidget& owner);
    HelpPage(const HelpPage&) = delete;
    HelpPage& operator=(const HelpPage&) = delete;
    ~HelpPage();

    void open();
    /// Null before it was opened.
    QTextBrowser* page() const { return m_page; }

private:
    void note(const JournalRecord& record);

    QWidget& m_owner;
    QPointer<QTextBrowser> m_page;  // null: not opened yet
    QTimer m_soon;                  // the host has come to rest before the page opens
    Journal::Listening m_listening;
};

}  // namespace workbench::desktop
