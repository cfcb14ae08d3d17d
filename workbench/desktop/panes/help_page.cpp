#include "workbench/desktop/panes/help_page.h"

#include "workbench/desktop/panes/help_text.h"

namespace workbench::desktop {

HelpPage::HelpPage(Journal& journal, QWidget& owner)
    : m_owner(owner),
      m_listening(journal.addListener([this](const JournalRecord& record) { note(record); })) {
    m_soon.setSingleShot(true);
    QObject::connect(&m_soon, &QTimer::timeout, [this] { open(); });
}

HelpPage::~HelpPage() {
    delete m_page.data();
}

void HelpPage::note(const JournalRecord& record) {
    const bool isCall = record.kind == "call" && record.field("name") == Value("vxedHelp");
    const bool isCommand = record.kind == "dialog" && record.field("name") == Value("Help");
    if (isCall || isCommand)
        m_soon.start(0);
}

void HelpPage::open() {
    if (m_page == nullptr) {
        m_page = new QTextBrowser(&m_owner);
        m_page->setWindowFlag(Qt::Window);
        m_page->setAttribute(Qt::WA_QuitOnClose, false);
        m_page->setWindowTitle(QStringLiteral("The dashboard"));
        m_page->setAccessibleName(QStringLiteral("Help on the dashboard"));
        m_page->setMarkdown(QString::fromUtf8(helpText()));
        m_page->resize(640, 560);
    }
    m_page->show();
    m_page->raise();
}

}  // namespace workbench::desktop
