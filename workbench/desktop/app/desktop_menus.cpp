#include "workbench/desktop/app/desktop_menus.h"

#include "workbench/desktop/app/document_tabs.h"
#include "workbench/desktop/app/file_actions.h"
#include "workbench/desktop/app/host_actions.h"
#include "workbench/desktop/app/main_window.h"
#include "workbench/desktop/drawing_view/drawing_view.h"
#include "workbench/desktop/look/text.h"
#include "workbench/desktop/mirror/window_mirror.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"
#include "workbench/menu/menu_host.h"
#include "workbench/profiles/profile_store.h"
#include "workbench/toolkit/shade.h"
#include "workbench/toolkit/toolkit.h"

#include <hostapi/vxdashboard.h>

#include <QDockWidget>
#include <QInputDialog>
#include <QLocale>
#include <QMenuBar>
#include <QMessageBox>
#include <functional>

namespace workbench::desktop {

namespace {

constexpr const char* kLocales[] = {"en_US", "en_GB", "de_DE", "fr_FR", "it_IT", "es_ES", "ja_JP"};
constexpr int kIconSizes[] = {16, 32};

void addListMenu(QMenuBar& bar, const QString& title, const std::function<void(QMenu&)>& fill) {
    QMenu* const menu = bar.addMenu(title);
    QObject::connect(menu, &QMenu::aboutToShow, menu, [menu, fill] {
        menu->clear();
        fill(*menu);
    });
}

void addChoice(QMenu& menu, const QString& text, bool checked,
               const std::function<void()>& chosen) {
    QAction* const action = menu.addAction(text);
    action->setCheckable(true);
    action->setChecked(checked);
    QObject::connect(action, &QAction::triggered, action, chosen);
}

void addAction(QMenu& menu, const QString& text, const std::function<void()>& chosen) {
    QAction* const action = menu.addAction(text);
    QObject::connect(action, &QAction::triggered, action, chosen);
}

}  // namespace

DesktopMenus::DesktopMenus(MainWindow& window, QDockWidget& journal)
    : m_window(window),
      m_workbench(window.workbench()) {
    QMenuBar& bar = *window.menuBar();
    addFileActions(window.fileActions());
    addListMenu(bar, QStringLiteral("&Document"), [this](QMenu& menu) { fillDocuments(menu); });
    addEditMenu(bar);
    m_fit = make(QStringLiteral("&Fit the drawing"), Qt::CTRL | Qt::Key_0, [this] {
        if (DrawingView* view = m_window.documentTabs().view())
            view->fit();
    });
    addListMenu(bar, QStringLiteral("&Workspace"), [this](QMenu& menu) { fillWorkspaces(menu); });
    addListMenu(bar, QStringLiteral("&Profile"), [this](QMenu& menu) { fillProfiles(menu); });
    addListMenu(bar, QStringLiteral("&View"),
                [this, &journal](QMenu& menu) { fillView(menu, journal); });
    addListMenu(bar, QStringLiteral("&Language"), [this](QMenu& menu) { fillLanguages(menu); });
    addHelpMenu(bar);
}

QAction* DesktopMenus::make(const QString& text, const QKeySequence& shortcut,
                            const std::function<void()>& chosen) {
    auto* const action = new QAction(text, &m_window);
    action->setShortcut(shortcut);
    QObject::connect(action, &QAction::triggered, &m_window, chosen);
    m_window.addAction(action);
    return action;
}

void DesktopMenus::addFileActions(FileActions& files) {
    m_fileActions = {
        make(QStringLiteral("&New"), QKeySequence::New, [&files] { files.create(); }),
        make(QStringLiteral("&Open..."), QKeySequence::Open, [&files] { files.open(); }),
        make(QStringLiteral("&Save"), QKeySequence::Save, [&files] { files.save(); }),
        make(QStringLiteral("Save &as..."), Qt::CTRL | Qt::SHIFT | Qt::Key_S,
             [&files] { files.saveAs(); }),
        make(QStringLiteral("&Close"), QKeySequence::Close, [&files] { files.closeActive(); }),
        make(QStringLiteral("&Quit"), Qt::CTRL | Qt::Key_Q, [this] { m_window.close(); }),
    };
}

void DesktopMenus::addEditMenu(QMenuBar& bar) {
    QMenu* const menu = bar.addMenu(QStringLiteral("&Edit"));
    menu->addAction(make(QStringLiteral("&Undo"), QKeySequence::Undo, [this] {
        m_window.stage().pump.act([this] { m_workbench.editor().undo(); });
    }));
    menu->addAction(make(QStringLiteral("&Redo"), Qt::CTRL | Qt::Key_Y, [this] {
        m_window.stage().pump.act([this] { m_workbench.editor().redo(); });
    }));
}

void DesktopMenus::addHelpMenu(QMenuBar& bar) {
    QMenu* const menu = bar.addMenu(QStringLiteral("&Help"));
    menu->addAction(make(QStringLiteral("The &dashboard"), QKeySequence::HelpContents,
                         [this] { m_window.showHelp(); }));
    menu->addAction(make(QStringLiteral("&About the workbench"), {}, [this] { about(); }));
}

void DesktopMenus::about() {
    QMessageBox::about(
        &m_window, QStringLiteral("About the workbench"),
        QStringLiteral(
            "The workbench is a stand-in for a drafting program: it loads the dashboard, "
            "so that anyone can see, try and test it."));
}

void DesktopMenus::fillDocuments(QMenu& menu) {
    for (QAction* action : m_fileActions)
        menu.addAction(action);
    DocumentList& documents = m_workbench.editor().documents();
    Document* const active = documents.active();
    if (active == nullptr)
        return;
    menu.addSeparator();
    for (Document* document : documents.all()) {
        addChoice(menu, toQt(document->name()), document == active, [this, document] {
            m_window.stage().pump.act(
                [this, document] { m_workbench.editor().documents().activate(*document); });
        });
    }
}

void DesktopMenus::fillWorkspaces(QMenu& menu) {
    const std::string& current = m_workbench.menu().workspaces().current();
    for (const std::string& name : workspaceNames(m_workbench)) {
        addChoice(menu, toQt(std::string_view(name)), name == current, [this, name] {
            m_window.stage().pump.act([this, &name] { switchWorkspace(m_workbench, name); });
        });
    }
    menu.addSeparator();
    addAction(menu, QStringLiteral("Read the &panels anew"),
              [this] { m_window.stage().pump.act([this] { reloadMenu(m_workbench); }); });
}

void DesktopMenus::fillProfiles(QMenu& menu) {
    const std::string& current = m_workbench.profiles().currentName();
    for (const std::string& name : profileNames(m_workbench)) {
        addChoice(menu, toQt(std::string_view(name)), name == current, [this, name] {
            m_window.stage().pump.act([this, &name] { m_workbench.profiles().switchTo(name); });
        });
    }
    menu.addSeparator();
    addAction(menu, QStringLiteral("&New..."), [this] { newProfile(); });
    addAction(menu, QStringLiteral("&Save"),
              [this] { m_window.stage().pump.act([this] { m_workbench.profiles().save(); }); });
}

void DesktopMenus::newProfile() {
    const QString name = QInputDialog::getText(&m_window, QStringLiteral("New profile"),
                                               QStringLiteral("Name of the profile:"));
    if (!name.isEmpty())
        m_window.stage().pump.act([this, &name] {
            m_workbench.profiles().switchTo(name.toStdString());
            // Only profiles with a file are there again when another one is current.
            m_workbench.profiles().save();
        });
}

void DesktopMenus::fillView(QMenu& menu, QDockWidget& journal) {
    addAction(menu, QStringLiteral("Show or hide the &dashboard"),
              [this] { m_window.stage().pump.act([this] { toggleDashboard(m_workbench); }); });
    menu.addAction(journal.toggleViewAction());
    addAction(menu, QStringLiteral("&Compare with the host"),
              [this] { m_window.compareWithHost(); });
    addAction(menu, QStringLiteral("&Reset the layout"),
              [this] { m_window.stage().pump.act([this] { resetLayout(m_workbench); }); });
    menu.addAction(m_fit);
    menu.addSeparator();
    fillThemes(*menu.addMenu(QStringLiteral("&Theme")));
    fillIconSizes(*menu.addMenu(QStringLiteral("&Size of the tools")));
}

void DesktopMenus::fillThemes(QMenu& menu) {
    for (const Shade shade : {Shade::Light, Shade::Dark}) {
        addChoice(menu, QString::fromLatin1(nameOf(shade)), m_window.shade() == shade,
                  [this, shade] {
                      m_window.setShade(shade);
                      m_window.rememberLook();
                  });
    }
}

void DesktopMenus::fillIconSizes(QMenu& menu) {
    for (const int size : kIconSizes) {
        addChoice(menu, QStringLiteral("%1 pixels").arg(size),
                  m_workbench.toolkit().iconSize() == size, [this, size] {
                      m_window.stage().pump.act([this, size] { setIconSize(m_workbench, size); });
                  });
    }
}

void DesktopMenus::fillLanguages(QMenu& menu) {
    for (const char* locale : kLocales) {
        const QLocale shown(QString::fromLatin1(locale));
        const QString text = QLocale::languageToString(shown.language()) + QStringLiteral(" (") +
                             QLocale::territoryToString(shown.territory()) + QLatin1Char(')');
        addChoice(menu, text, m_workbench.options().locale == locale,
                  [this, locale] { m_window.setLocale(locale); });
    }
}

}  // namespace workbench::desktop
