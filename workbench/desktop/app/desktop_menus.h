#pragma once

#include <QMenu>

class QDockWidget;

namespace workbench {
class Workbench;
}

namespace workbench::desktop {

class MainWindow;

/// The menus of the window: documents, workspaces, profiles, the look, the language. Lists are made
/// when their menu opens.
class DesktopMenus {
public:
    DesktopMenus(MainWindow& window, QDockWidget& journal);
    DesktopMenus(const DesktopMenus&) = delete;
    DesktopMenus& operator=(const DesktopMenus&) = delete;

private:
    void fillDocuments(QMenu& menu);
    void fillWorkspaces(QMenu& menu);
    void fillProfiles(QMenu& menu);
    void fillView(QMenu& menu, QDockWidget& journal);
    void fillThemes(QMenu& menu);
    void fillIconSizes(QMenu& menu);
    void fillLanguages(QMenu& menu);
    void newDocument();
    void openDocument();
    void newProfile();

    MainWindow& m_window;
    Workbench& m_workbench;
};

}  // namespace workbench::desktop
