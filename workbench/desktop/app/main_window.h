#pragma once

#include "workbench/desktop/app/desktop_state.h"
#include "workbench/desktop/look/look.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/desktop/pump/pump.h"
#include "workbench/drawing/database/geometry.h"

#include <QMainWindow>
#include <QPixmap>
#include <filesystem>
#include <memory>

class QDockWidget;

namespace workbench {
class Document;
}

namespace workbench::desktop {

class CommandEcho;
class CommandLine;
class DesktopCommands;
class DesktopMenus;
class DockSplitter;
class DocumentTabs;
class EntityPicker;
class FileActions;
class FrameHome;
class GestureWatch;
class HelpPage;
class JournalPane;
class LayerStateBoxes;
class LayoutKeeper;
class Questions;
class SearchBox;
class SpaceTabs;
class StatusFields;
class WindowMirror;

/// The workbench's window: the host's main frame with the drawing and the dashboard in it, the
/// command line, the journal, and menus for what a host's user does beside drawing.
class MainWindow final : public QMainWindow {
public:
    /// The workbench must outlive the window.
    MainWindow(Workbench& workbench, Shade shade);
    ~MainWindow() override;

    Stage& stage() { return m_stage; }
    WindowMirror& mirror() { return *m_mirror; }
    Workbench& workbench() { return m_workbench; }
    JournalPane& journalPane() { return *m_journal; }
    CommandLine& commandLine() { return *m_commandLine; }
    SearchBox& searchBox() { return *m_search; }
    DocumentTabs& documentTabs() { return *m_tabs; }
    SpaceTabs& spaceTabs() { return *m_spaces; }
    FileActions& fileActions() { return *m_files; }

    Shade shade() const { return m_shade; }
    /// Changes all colours, those of the dashboard too, which is told.
    void setShade(Shade shade);
    /// The user's language and formats from now on.
    void setLocale(const std::string& locale);
    /// Writes a picture of the dashboard, or of the whole window, to a PNG file. Throws `InputError`
    /// if it can't be written there, and if no dashboard is on show.
    void takePicture(const std::filesystem::path& file, bool wholeWindow);
    /// Takes over what was remembered of an earlier run, and remembers how things stand now.
    void recall();
    void remember();
    /// Remembers the look at once, as it may be the last thing that its user does.
    void rememberLook();
    /// Says at the command line what of the dashboard doesn't agree with the host's state.
    void compareWithHost();
    /// Opens the page about the dashboard.
    void showHelp();
    /// Says something in the status bar.
    void tell(const QString& text);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void keepOnScreen();
    void buildPanes();
    void showShade(Shade shade);
    void onRest();
    void runCommand(const QString& text);
    void leaveDashboard(const QWidget* now);
    void leaveToCommandLine();
    bool enterDashboard(bool backwards);
    void switchPane();
    void addShortcuts();
    void pressDrawing(QPointF point);
    void answerPoint(const drawing::Vec3& point);
    QRect dashboardPlace();
    int hiddenHeight() const;
    void layOutNow();
    DesktopState stateNow();
    QPixmap pictureOf(bool wholeWindow);

    Workbench& m_workbench;
    Pump m_pump;
    Stage m_stage;
    Shade m_shade;
    std::string m_unknownTheme;  // was remembered in place of a shade; empty once one is chosen
    FrameHome* m_home;
    DockSplitter* m_splitter;
    DocumentTabs* m_tabs;
    SpaceTabs* m_spaces;
    CommandLine* m_commandLine;
    StatusFields* m_status;
    JournalPane* m_journal;
    SearchBox* m_search;
    QDockWidget* m_journalDock;
    std::unique_ptr<LayoutKeeper> m_layout;  // null until an earlier run was recalled
    DesktopState m_recalled;                 // nothing is written over it before something differs
    const Document* m_front = nullptr;       // compared only: the document may have been closed
    std::unique_ptr<WindowMirror> m_mirror;
    std::unique_ptr<Questions> m_questions;
    std::unique_ptr<EntityPicker> m_picker;
    std::unique_ptr<LayerStateBoxes> m_layerStates;
    std::unique_ptr<FileActions> m_files;
    std::unique_ptr<DesktopMenus> m_menus;
    std::unique_ptr<DesktopCommands> m_commands;
    std::unique_ptr<CommandEcho> m_echo;
    std::unique_ptr<HelpPage> m_help;
    std::unique_ptr<GestureWatch> m_gestures;
};

}  // namespace workbench::desktop
