#include "workbench/desktop/app/main_window.h"

#include "workbench/audit/audit.h"
#include "workbench/base/input_error.h"
#include "workbench/base/number_text.h"
#include "workbench/desktop/app/collapsed_panels.h"
#include "workbench/desktop/app/desktop_commands.h"
#include "workbench/desktop/app/desktop_menus.h"
#include "workbench/desktop/app/desktop_state.h"
#include "workbench/desktop/app/dock_splitter.h"
#include "workbench/desktop/app/document_tabs.h"
#include "workbench/desktop/app/entity_picker.h"
#include "workbench/desktop/app/file_actions.h"
#include "workbench/desktop/app/frame_home.h"
#include "workbench/desktop/app/gesture_watch.h"
#include "workbench/desktop/app/layer_state_boxes.h"
#include "workbench/desktop/app/layout_keeper.h"
#include "workbench/desktop/app/palette_colours.h"
#include "workbench/desktop/app/reveal.h"
#include "workbench/desktop/app/space_tabs.h"
#include "workbench/desktop/app/why_disabled.h"
#include "workbench/desktop/look/shapes.h"
#include "workbench/desktop/look/text.h"
#include "workbench/desktop/mirror/mirror_widget.h"
#include "workbench/desktop/mirror/questions.h"
#include "workbench/desktop/mirror/window_mirror.h"
#include "workbench/desktop/panes/command_echo.h"
#include "workbench/desktop/panes/command_line.h"
#include "workbench/desktop/panes/help_page.h"
#include "workbench/desktop/panes/journal_pane.h"
#include "workbench/desktop/panes/search_box.h"
#include "workbench/desktop/panes/status_fields.h"
#include "workbench/editor/command_processor.h"
#include "workbench/editor/editor.h"
#include "workbench/editor/variables/variable_definition.h"
#include "workbench/host/workbench.h"
#include "workbench/profiles/profile_store.h"
#include "workbench/toolkit/key_road.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/panel_set_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QLineEdit>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QToolBar>
#include <QToolTip>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace workbench::desktop {

namespace {

constexpr int kTellMs = 8000;
constexpr int kSearchWidth = 320;  // pixels
constexpr int kDecimalsOfAPoint = 4;
constexpr const char* kFirstHint =
    "In the drawing, drag with the left button to orbit and with the middle one to pan; "
    "the wheel zooms. Help is in the menu, or F1.";

/// The names that can be typed at the command line.
QStringList namesToType(Workbench& workbench) {
    QStringList names;
    for (const auto& command : workbench.editor().commands().all())
        names.append(toQt(command->globalName));
    for (const VariableDefinition& variable : variableTable())
        names.append(toQt(variable.name));
    names.removeDuplicates();
    names.sort();
    return names;
}

}  // namespace

MainWindow::MainWindow(Workbench& workbench, Shade shade)
    : m_workbench(workbench),
      m_pump(workbench),
      m_stage(workbench, m_pump, shade),
      m_shade(shade),
      m_home(new FrameHome(this)),
      m_splitter(new DockSplitter(m_stage, *m_home)),
      m_tabs(new DocumentTabs(m_stage)),
      m_spaces(new SpaceTabs(m_stage)),
      m_commandLine(new CommandLine),
      m_status(new StatusFields),
      m_journal(new JournalPane(workbench.journal())),
      m_search(new SearchBox(workbench.toolkit())),
      m_journalDock(new QDockWidget(QStringLiteral("Journal"), this)) {
    setWindowTitle(QStringLiteral("Workbench"));
    setCentralWidget(m_home);
    m_mirror = std::make_unique<WindowMirror>(m_stage, *m_home);
    m_questions = std::make_unique<Questions>(m_stage, *this);
    m_picker = std::make_unique<EntityPicker>(m_stage, *m_tabs,
                                              [this](const QString& text) { tell(text); });
    m_layerStates = std::make_unique<LayerStateBoxes>(m_stage, *this);
    m_home->attach(m_stage);
    keepOnScreen();
    buildPanes();
    m_files = std::make_unique<FileActions>(*this);
    m_tabs->setOnClosing([this](Document& document) { m_files->close(document); });
    m_help = std::make_unique<HelpPage>(m_workbench.journal(), *this);
    m_menus = std::make_unique<DesktopMenus>(*this, *m_journalDock);
    m_commands = std::make_unique<DesktopCommands>(*this);
    setShade(shade);
    m_gestures = std::make_unique<GestureWatch>(m_pump, *m_journal);
    m_pump.setOnFailure([this](const QString& text) { tell(text); });
    m_pump.setOnRest([this] { onRest(); });
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* /*before*/, QWidget* now) { leaveDashboard(now); });
    onRest();
}

MainWindow::~MainWindow() {
    // The end of the base closes the window, which moves the keyboard.
    disconnect(qApp, nullptr, this, nullptr);
    m_pump.setOnRest(nullptr);
    m_pump.setOnFailure(nullptr);
}

/// Small frames stand on the screens that there are.
void MainWindow::keepOnScreen() {
    const auto follow = [this](const QRect& all) {
        m_stage.toolkit.frame().setRoom({all.left(), all.top(), all.right() + 1, all.bottom() + 1});
    };
    follow(screen()->availableVirtualGeometry());
    connect(screen(), &QScreen::virtualGeometryChanged, this, follow);
}

void MainWindow::buildPanes() {
    MainFrame& frame = m_stage.toolkit.frame();
    auto* const drawing = new QWidget;
    auto* const column = new QVBoxLayout(drawing);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_tabs);
    column->addWidget(m_spaces);
    m_mirror->fill(frame.drawingView().m_hWnd, *drawing);
    m_mirror->fill(frame.commandLine().m_hWnd, *m_commandLine);
    m_mirror->setOnKeyboardToDrawing([this] { leaveToCommandLine(); });
    m_stage.typed = [this](const QString& text) { m_commandLine->begin(text); };
    m_stage.whyDisabled = [this](HWND window, const CQrUiToolPanelItem* item) {
        return whyDisabled(m_workbench, window, item);
    };
    m_commandLine->setOnEnter(
        [this](const QString& text) { runCommand(text + QLatin1Char('\n')); });
    m_commandLine->setOnCancel([this] { runCommand(QStringLiteral("\x1b")); });
    m_echo = std::make_unique<CommandEcho>(
        m_workbench.journal(), [this](const QString& line) { m_commandLine->echo(line); });
    m_commandLine->setOnTab([this](bool backwards) { return enterDashboard(backwards); });
    m_tabs->setOnPointed([this](const drawing::Vec3& point) { answerPoint(point); });
    m_tabs->setOnPressed([this](QPointF point) { pressDrawing(point); });
    m_commandLine->setNames([this] { return namesToType(m_workbench); });
    m_journal->setIsIdle([this] { return m_pump.isIdling(); });
    m_journal->setOnFailure([this](const QString& text) { tell(text); });
    m_search->setOnChosen([this](const SearchHit& hit) { reveal(m_stage, *m_mirror, hit); });
    m_search->setOnLeft([this] { m_commandLine->input().setFocus(); });

    m_journalDock->setWidget(m_journal);
    m_journalDock->hide();
    addDockWidget(Qt::BottomDockWidgetArea, m_journalDock);
    auto* bar = addToolBar(QStringLiteral("Find"));
    bar->setMovable(false);
    m_search->setMaximumWidth(kSearchWidth);
    bar->addWidget(m_search);
    statusBar()->addPermanentWidget(m_status);
    addShortcuts();
}

void MainWindow::addShortcuts() {
    connect(new QShortcut(Qt::Key_F6, this), &QShortcut::activated, this, [this] { switchPane(); });
    connect(new QShortcut(Qt::CTRL | Qt::Key_F, this), &QShortcut::activated, this, [this] {
        m_search->setFocus(Qt::ShortcutFocusReason);
        m_search->selectAll();
    });
}

/// Brings the keyboard to the first, or the last, part of a dashboard on show. False if there is none.
bool MainWindow::enterDashboard(bool backwards) {
    bool entered = false;
    m_pump.act([&] {
        MainFrame& frame = m_stage.toolkit.frame();
        const std::vector<CQrUiPaletteSet*> bars = frame.bars();
        for (CQrUiPaletteSet* set : bars) {
            if (entered || !m_stage.windows.isOnScreen(set->m_hWnd))
                continue;
            if (m_stage.toolkit.paletteSets().of(set).place.anchored)
                frame.rollOut(*set, true);
            entered = goToNextField(m_stage.toolkit, set->m_hWnd, backwards);
        }
    });
    return entered;
}

void MainWindow::switchPane() {
    if (paletteSetAbove(m_stage.windows, m_stage.windows.focus()) != nullptr)
        m_commandLine->input().setFocus();
    else
        enterDashboard(false);
}

/// The host's drawing view has been clicked; what is typed from now on is for the command line.
void MainWindow::pressDrawing(QPointF point) {
    const HWND view = m_stage.toolkit.frame().drawingView().m_hWnd;
    const CPoint place = toHost(point.toPoint());
    m_pump.act([this, view, place] {
        if (m_stage.toolkit.mouse().press(view, place))
            m_stage.toolkit.mouse().release(view, place);
    });
    if (m_stage.windows.focus() == view)
        m_commandLine->input().setFocus();
}

/// As if it had been typed.
void MainWindow::answerPoint(const drawing::Vec3& point) {
    const auto number = [](double value) { return toQt(fixedText(value, kDecimalsOfAPoint)); };
    const QString answer = number(point.x) + QLatin1Char(',') + number(point.y);
    const Document* const document = m_workbench.editor().documents().active();
    if (document != nullptr)
        m_commandLine->echo(toQt(document->processor().prompt()) + QLatin1Char(' ') + answer);
    runCommand(answer + QLatin1Char('\n'));
}

void MainWindow::runCommand(const QString& text) {
    m_pump.act([this, &text] {
        if (!m_workbench.editor().type(toHost(text)))
            tell(QStringLiteral("No drawing is open."));
    });
}

/// Whatever was done, the panes take it over here; the mirrored windows have their own notices.
void MainWindow::onRest() {
    if (m_shade != m_stage.toolkit.shade())
        showShade(m_stage.toolkit.shade());
    m_splitter->follow();
    m_tabs->refresh();
    m_spaces->refresh();
    m_files->files().follow();
    m_status->refresh(m_workbench);
    const Document* const document = m_workbench.editor().documents().active();
    if (document != std::exchange(m_front, document))
        m_stage.toolkit.balloons().dismiss();
    m_commandLine->setPrompt(document == nullptr ? QString()
                                                 : toQt(document->processor().prompt()));
    m_journal->takeOver();
    // Nobody asks for the records of a session by hand: they would only pile up.
    if (!m_pump.isHeld())
        m_workbench.journal().take();
}

/// The keyboard has left the dashboard, unless for another pane.
void MainWindow::leaveToCommandLine() {
    const QWidget* const now = QApplication::focusWidget();
    if (now == nullptr || dynamic_cast<const MirrorWidget*>(now) != nullptr)
        m_commandLine->input().setFocus();
}

/// A pane that takes the keyboard takes it from the dashboard, as the drawing would.
void MainWindow::leaveDashboard(const QWidget* now) {
    const bool isPane = now != nullptr && dynamic_cast<const MirrorWidget*>(now) == nullptr &&
                        now->window() == this;
    if (!isPane || paletteSetAbove(m_stage.windows, m_stage.windows.focus()) == nullptr)
        return;
    m_pump.act([this] { m_stage.windows.setFocus(m_stage.toolkit.frame().drawingView().m_hWnd); });
}

void MainWindow::setShade(Shade shade) {
    m_pump.act([this, shade] { m_stage.toolkit.setShade(shade); });
    showShade(shade);
}

void MainWindow::showShade(Shade shade) {
    m_shade = shade;
    m_unknownTheme.clear();
    m_stage.look = &lookOf(shade);
    QApplication::setPalette(paletteOf(*m_stage.look));
    QToolTip::setPalette(paletteOf(*m_stage.look));
    m_tabs->setLook(*m_stage.look);
    m_mirror->redrawAll();
}

void MainWindow::setLocale(const std::string& locale) {
    m_workbench.setLocale(locale);
    m_pump.act([] {});
}

void MainWindow::showHelp() {
    m_help->open();
}

void MainWindow::tell(const QString& text) {
    statusBar()->showMessage(text, kTellMs);
}

QRect MainWindow::dashboardPlace() {
    for (const CQrUiPaletteSet* set : m_stage.toolkit.frame().bars()) {
        const MirrorWidget* const bar = m_mirror->widgetOf(set->m_hWnd);
        if (bar != nullptr && bar->isVisible() && bar->window() == this)
            return {bar->mapTo(this, QPoint(0, 0)), bar->size()};
    }
    return {};
}

/// How far the panels of a docked dashboard go on below what is on show, in pixels.
int MainWindow::hiddenHeight() const {
    const WindowSystem& windows = m_stage.windows;
    int hidden = 0;
    for (const HWND each : windows.descendants(m_stage.toolkit.frame().frame().m_hWnd)) {
        const Window& window = *windows.find(each);
        if (dynamic_cast<const PanelSetWidget*>(window.widget.get()) == nullptr ||
            !windows.isOnScreen(each))
            continue;
        const int content = m_stage.toolkit.panelSets()
                                .of(static_cast<const CQrUiPanelSet*>(window.object))
                                .contentHeight;
        hidden = std::max(hidden, content - windows.find(window.parent)->rect.Height());
    }
    return hidden;
}

void MainWindow::layOutNow() {
    QApplication::processEvents();
    m_mirror->sync();
    onRest();
    QApplication::processEvents();
}

/// The window is as high as the whole dashboard while that is pictured.
void MainWindow::takePicture(const std::filesystem::path& file, bool wholeWindow) {
    layOutNow();
    const QSize before = size();
    if (const int hidden = hiddenHeight(); hidden > 0 && !wholeWindow) {
        resize(before + QSize(0, hidden));
        layOutNow();
    }
    const QPixmap picture = pictureOf(wholeWindow);
    resize(before);
    if (picture.isNull())
        throw InputError(file.string(), "there is no dashboard on show to take a picture of");
    if (!picture.save(toQt(std::string_view(file.string())), "PNG"))
        throw InputError(file.string(), "no picture can be written there");
}

/// Null if the dashboard is to be pictured and isn't on show.
QPixmap MainWindow::pictureOf(bool wholeWindow) {
    if (wholeWindow)
        return grab();
    if (const QRect place = dashboardPlace(); !place.isEmpty())
        return grab(place);
    QWidget* const floating = floatingDashboard(m_stage, *m_mirror);
    return floating == nullptr ? QPixmap() : floating->grab();
}

void MainWindow::recall() {
    QString complaint;
    const DesktopState state = DesktopState::read(m_workbench.profiles().folder(), complaint);
    for (const std::string& damage : m_workbench.profiles().complaints())
        tell(toQt(std::string_view(damage)));
    if (!complaint.isEmpty())
        tell(complaint);
    if (state.shade)
        setShade(*state.shade);
    m_unknownTheme = state.unknownTheme;
    m_files->files().setLastFolder(state.lastFolder);
    if (!DesktopState::exists(m_workbench.profiles().folder()))
        m_commandLine->echo(QString::fromLatin1(kFirstHint));
    m_pump.act([&] { collapsePanels(m_stage.toolkit, state.rolledUp); });
    m_recalled = stateNow();
    m_layout = std::make_unique<LayoutKeeper>(m_stage.toolkit,
                                              [this] { m_pump.act([this] { remember(); }); });
    m_layout->start();
}

void MainWindow::compareWithHost() {
    const std::vector<AuditFinding> findings = audit(m_workbench);
    if (findings.empty())
        m_commandLine->echo(QStringLiteral("All that is on show agrees with the host."));
    for (const AuditFinding& finding : findings)
        m_commandLine->echo(QStringLiteral("%1: %2 shows \"%3\" for \"%4\".")
                                .arg(toQt(finding.control), toQt(finding.field),
                                     toQt(finding.shown), toQt(finding.expected)));
}

void MainWindow::remember() {
    m_workbench.profiles().save();
    rememberLook();
}

DesktopState MainWindow::stateNow() {
    const std::optional<Shade> shade =
        m_unknownTheme.empty() ? std::optional(m_shade) : std::nullopt;
    return {shade, collapsedPanels(m_stage.toolkit), m_files->files().lastFolder(), m_unknownTheme};
}

/// A file that can't be read stays as it is until there is something to write.
void MainWindow::rememberLook() {
    const std::filesystem::path& folder = m_workbench.profiles().folder();
    const DesktopState now = stateNow();
    if (now != m_recalled || !DesktopState::exists(folder))
        now.write(folder);
    m_recalled = now;
}

/// The host begins to quit, and stays if its user wants to keep a change.
void MainWindow::closeEvent(QCloseEvent* event) {
    m_pump.act([this] { m_workbench.editor().quitBegin(); });
    if (!m_files->mayLeaveAll()) {
        m_pump.act([this] { m_workbench.editor().quitAbort(); });
        event->ignore();
        return;
    }
    m_pump.act([this] { remember(); });
    QMainWindow::closeEvent(event);
}

}  // namespace workbench::desktop
