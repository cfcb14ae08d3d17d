#pragma once

#include <QKeySequence>
#include <QList>
#include <QMenu>
#include <functional>

class QDockWidget;
class QMenuBar;

namespace workbench {
class Workbench;
}

namespace workbench::desktop {

class FileActions;
class MainWindow;

/// The menus of the window: documents, undo, workspaces, profiles, the look, the language, help. Lists
/// are made when their menu opens; what has a shortcut lives with the window.
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
    void addFileActions(FileActions& files);
    void addEditMenu(QMenuBar& bar);
    void addHelpMenu(QMenuBar& bar);
    QAction* make(const QString& text, const QKeySequence& shortcut,
                  const std::function<void()>& chosen);
    void newProfile();
    void about();

    MainWindow& m_window;
    Workbench& m_workbench;
    QList<QAction*> m_fileActions;  // belong to the window
    QAction* m_fit = nullptr;       // likewise
};

}  // namespace workbench::desktop
