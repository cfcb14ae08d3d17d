#include "workbench/desktop/app/desktop_menus.h"

#include "workbench/desktop/app/host_actions.h"
#include "workbench/desktop/app/main_window.h"
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
#include <QFileDialog>
#include <QInputDialog>
#include <QLocale>
#include <QMenuBar>
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
    addListMenu(bar, QStringLiteral("&Document"), [this](QMenu& menu) { fillDocuments(menu); });
    addListMenu(bar, QStringLiteral("&Workspace"), [this](QMenu& menu) { fillWorkspaces(menu); });
    addListMenu(bar, QStringLiteral("&Profile"), [this](QMenu& menu) { fillProfiles(menu); });
    addListMenu(bar, QStringLiteral("&View"),
                [this, &journal](QMenu& menu) { fillView(menu, journal); });
    addListMenu(bar, QStringLiteral("&Language"), [this](QMenu& menu) { fillLanguages(menu); });
}

void DesktopMenus::fillDocuments(QMenu& menu) {
    addAction(menu, QStringLiteral("&New"), [this] { newDocument(); });
    addAction(menu, QStringLiteral("&Open..."), [this] { openDocument(); });
    DocumentList& documents = m_workbench.editor().documents();
    Document* const active = documents.active();
    if (active == nullptr)
        return;
    addAction(menu, QStringLiteral("&Close"), [this, active] {
        m_window.stage().pump.act(
            [this, active] { m_workbench.editor().documents().close(*active); });
    });
    menu.addSeparator();
    for (Document* document : documents.all()) {
        addChoice(menu, toQt(document->name()), document == active, [this, document] {
            m_window.stage().pump.act(
                [this, document] { m_workbench.editor().documents().activate(*document); });
        });
    }
}

void DesktopMenus::newDocument() {
    m_window.stage().pump.act([this] {
        DocumentList& documents = m_workbench.editor().documents();
        int number = 1;
        while (documents.find(L"Drawing" + std::to_wstring(number)) != nullptr)
            ++number;
        documents.create(L"Drawing" + std::to_wstring(number));
    });
}

void DesktopMenus::openDocument() {
    const QString file = QFileDialog::getOpenFileName(&m_window, QStringLiteral("Open a drawing"),
                                                      {}, QStringLiteral("Drawings (*.json)"));
    if (file.isEmpty())
        return;
    m_window.stage().pump.act(
        [this, &file] { m_workbench.editor().documents().open(file.toStdString()); });
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
        m_window.stage().pump.act(
            [this, &name] { m_workbench.profiles().switchTo(name.toStdString()); });
}

void DesktopMenus::fillView(QMenu& menu, QDockWidget& journal) {
    addAction(menu, QStringLiteral("Show or hide the &dashboard"),
              [this] { m_window.stage().pump.act([this] { toggleDashboard(m_workbench); }); });
    menu.addAction(journal.toggleViewAction());
    addAction(menu, QStringLiteral("&Reset the layout"),
              [this] { m_window.stage().pump.act([this] { resetLayout(m_workbench); }); });
    menu.addSeparator();
    fillThemes(*menu.addMenu(QStringLiteral("&Theme")));
    fillIconSizes(*menu.addMenu(QStringLiteral("&Size of the tools")));
}

void DesktopMenus::fillThemes(QMenu& menu) {
    for (const Shade shade : {Shade::Light, Shade::Dark}) {
        addChoice(menu, QString::fromLatin1(nameOf(shade)), m_window.shade() == shade,
                  [this, shade] { m_window.setShade(shade); });
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
