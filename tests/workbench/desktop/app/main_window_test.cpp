#include "workbench/desktop/app/main_window.h"

#include "tests/workbench/desktop/app/main_window_fixture.h"
#include "workbench/base/input_error.h"
#include "workbench/desktop/app/collapsed_panels.h"
#include "workbench/desktop/app/desktop_state.h"
#include "workbench/desktop/app/document_tabs.h"
#include "workbench/desktop/app/host_actions.h"
#include "workbench/desktop/drawing_view/drawing_view.h"
#include "workbench/desktop/mirror/mirror_widget.h"
#include "workbench/desktop/mirror/window_mirror.h"
#include "workbench/desktop/panes/command_line.h"
#include "workbench/desktop/panes/journal_pane.h"
#include "workbench/desktop/panes/search_box.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/editor/command_processor.h"
#include "workbench/editor/editor.h"
#include "workbench/navigation/navigation_tool.h"
#include "workbench/profiles/profile_store.h"
#include "workbench/startup/open_dashboard.h"
#include "workbench/toolkit/edit_widget.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/shade.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_parts.h"
#include "workbench/windows/window_system.h"

#include <hostapi/window/locale.h>

#include <gtest/gtest.h>

#include <QAccessible>
#include <QDockWidget>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTemporaryDir>
#include <algorithm>
#include <iterator>

namespace workbench::desktop {
namespace {

TEST_F(MainWindowTest, TheHostsFrameIsAsLargeAsItsPlace) {
    const CRect before = windows().clientRect(m_workbench.toolkit().frame().frame().m_hWnd);
    m_window.resize(1200, 900);
    QApplication::processEvents();
    rest();
    const CRect after = windows().clientRect(m_workbench.toolkit().frame().frame().m_hWnd);
    EXPECT_EQ(after.Width() - before.Width(), 200);
    EXPECT_EQ(after.Height() - before.Height(), 100);
}

TEST_F(MainWindowTest, LinesOfTheCommandLineAreRun) {
    enter("LUPREC");
    enter("5");
    EXPECT_EQ(editor().read(L"LUPREC"), Value(5));
    enter("LINE");
    EXPECT_NE(editor().read(L"CMDACTIVE"), Value(0));
    pressKey(m_window.commandLine().input(), Qt::Key_Escape);
    EXPECT_EQ(editor().read(L"CMDACTIVE"), Value(0));
}

TEST_F(MainWindowTest, AnUnknownCommandAndABadValueAreAnsweredInOneLineEach) {
    const auto* log = m_window.commandLine().findChild<QPlainTextEdit*>();
    enter("NOSUCH");
    EXPECT_TRUE(log->toPlainText().endsWith(
        QLatin1String("Unknown command \"NOSUCH\": the workbench has none of that name.")));
    enter("LUPREC");
    enter("many");
    EXPECT_TRUE(log->toPlainText().endsWith(
        QLatin1String("\"many\" is no value of LUPREC: enter a number from 0 to 8.")));
}

TEST_F(MainWindowTest, AClickInTheDrawingAnswersAPointPrompt) {
    enter("LINE");
    DrawingView& view = m_window.documentTabs().viewAt(0);
    click(view, {300, 400});
    const Document& document = *editor().documents().active();
    EXPECT_EQ(document.processor().prompt(), L"Specify next point:");
    const std::size_t before = document.data().ids(drawing::RecordKind::Entity).size();
    click(view, {350, 380});
    EXPECT_EQ(document.data().ids(drawing::RecordKind::Entity).size(), before + 1);
    enter("");
    EXPECT_FALSE(document.processor().isActive());
}

TEST_F(MainWindowTest, WhileThePanToolRunsADragPansAndBehindItADragOrbits) {
    DrawingView& view = m_window.documentTabs().viewAt(0);
    const drawing::Database& data = editor().documents().active()->data();
    const auto shown = [&data] {
        return data.look<drawing::Viewport>(drawing::activeViewport(data))->view;
    };
    const auto drag = [&view] {
        press(view, {300, 200});
        moveHeld(view, {340, 220});
        release(view, {340, 220});
    };
    enter("'_3dpan");
    ASSERT_TRUE(m_workbench.navigation().isRunning());
    const drawing::ViewParameters before = shown();
    drag();
    const drawing::ViewParameters panned = shown();
    EXPECT_NE(panned.target, before.target);
    pressKey(m_window.commandLine().input(), Qt::Key_Escape);
    ASSERT_FALSE(m_workbench.navigation().isRunning());
    drag();
    EXPECT_EQ(shown().target, panned.target);
    EXPECT_NE(shown().eye, panned.eye);
}

TEST_F(MainWindowTest, EachDocumentHasATab) {
    m_window.stage().pump.act([this] { editor().documents().create(L"Plan"); });
    DocumentTabs& tabs = m_window.documentTabs();
    ASSERT_EQ(tabs.count(), 2);
    EXPECT_EQ(tabs.tabText(1), QStringLiteral("Plan"));
    EXPECT_EQ(tabs.currentIndex(), 1);
    tabs.setCurrentIndex(0);
    EXPECT_EQ(editor().documents().active()->name(), L"house.json");
    Q_EMIT tabs.tabCloseRequested(1);
    EXPECT_EQ(tabs.count(), 1);
    EXPECT_EQ(editor().documents().count(), 1);
}

TEST_F(MainWindowTest, AFieldLosesTheKeyboardToAPane) {
    click(*edit());
    rest();
    EXPECT_EQ(windows().focus(), edit()->handle());
    Q_EMIT qApp->focusChanged(edit(), &m_window.searchBox());
    EXPECT_EQ(windows().focus(), m_workbench.toolkit().frame().drawingView().m_hWnd);
}

TEST_F(MainWindowTest, AClickInTheDrawingBringsTheKeyboardToTheCommandLine) {
    click(*edit());
    rest();
    EXPECT_EQ(m_window.focusWidget(), edit());
    click(m_window.documentTabs().viewAt(0), {300, 200});
    rest();
    EXPECT_EQ(windows().focus(), m_workbench.toolkit().frame().drawingView().m_hWnd);
    EXPECT_EQ(m_window.focusWidget(), &m_window.commandLine().input());
}

TEST_F(MainWindowTest, TabGoesFromTheCommandLineToTheDashboard) {
    pressKey(m_window.commandLine().input(), Qt::Key_Tab);
    rest();
    const HWND first = windows().focus();
    ASSERT_NE(paletteSetAbove(windows(), first), nullptr);
    EXPECT_EQ(m_window.focusWidget(), m_window.mirror().widgetOf(first));
    m_window.commandLine().input().setFocus();
    m_window.stage().pump.act(
        [this] { windows().setFocus(m_workbench.toolkit().frame().drawingView().m_hWnd); });
    pressKey(m_window.commandLine().input(), Qt::Key_Backtab, {}, Qt::ShiftModifier);
    rest();
    ASSERT_NE(paletteSetAbove(windows(), windows().focus()), nullptr);
    EXPECT_NE(windows().focus(), first);
}

TEST_F(MainWindowTest, ABalloonGoesWithTheDocument) {
    m_window.stage().pump.act([this] {
        m_workbench.toolkit().balloons().show(edit()->host()->parent, edit()->handle(), L"No.");
    });
    EXPECT_TRUE(m_workbench.toolkit().balloons().isShown());
    m_window.stage().pump.act([this] { editor().documents().create(L"Plan"); });
    EXPECT_FALSE(m_workbench.toolkit().balloons().isShown());
}

TEST_F(MainWindowTest, ThemesAreSwitchedWhileItRuns) {
    const QColor light = m_window.grab().toImage().pixelColor(m_window.width() - 100, 120);
    m_window.setShade(Shade::Dark);
    const QColor dark = m_window.grab().toImage().pixelColor(m_window.width() - 100, 120);
    EXPECT_GT(light.lightness(), dark.lightness());
    m_window.setShade(Shade::Light);
    EXPECT_EQ(m_window.grab().toImage().pixelColor(m_window.width() - 100, 120), light);
}

TEST_F(MainWindowTest, TheWindowFollowsAThemeThatTheHostSwitches) {
    const QColor light = m_window.grab().toImage().pixelColor(m_window.width() - 100, 120);
    m_window.stage().pump.act([this] { m_workbench.toolkit().setShade(Shade::Dark); });
    EXPECT_EQ(m_window.shade(), Shade::Dark);
    const QColor dark = m_window.grab().toImage().pixelColor(m_window.width() - 100, 120);
    EXPECT_GT(light.lightness(), dark.lightness());
    m_window.setShade(Shade::Light);
    EXPECT_EQ(m_workbench.toolkit().shade(), Shade::Light);
}

TEST_F(MainWindowTest, ASearchShowsAndMarksWhatItFound) {
    const HWND layers = findPanels(windows(), L"Layers").at(0)->m_hWnd;
    m_window.stage().pump.act([&] {
        const CQrUiPaletteSet* set = m_workbench.toolkit().frame().bars().front();
        m_workbench.answers().queue("menu", "Panels/Layers");
        m_workbench.toolkit().mouse().contextMenu(set->m_hWnd, {5, 5});
    });
    EXPECT_FALSE(windows().isOnScreen(layers));
    typeText(m_window.searchBox(), QStringLiteral("locked layer"));
    ASSERT_FALSE(m_window.searchBox().hits().empty());
    pressKey(m_window.searchBox(), Qt::Key_Return);
    EXPECT_TRUE(windows().isOnScreen(layers));
}

TEST_F(MainWindowTest, AToolThatWasFoundIsRunByEnter) {
    editor().set(L"PERSPECTIVE", 1);
    rest();
    typeText(m_window.searchBox(), QStringLiteral("parallel projection"));
    ASSERT_FALSE(m_window.searchBox().hits().empty());
    pressKey(m_window.searchBox(), Qt::Key_Return);
    rest();
    auto* const row = dynamic_cast<MirrorWidget*>(m_window.focusWidget());
    ASSERT_NE(row, nullptr);
    pressKey(*row, Qt::Key_Return);
    EXPECT_EQ(editor().read(L"PERSPECTIVE"), Value(0));
}

TEST_F(MainWindowTest, MenusListAndSwitchWorkspacesProfilesAndDocuments) {
    QMenu& workspaces = menu("&Workspace");
    EXPECT_TRUE(line(workspaces, QStringLiteral("3D Modeling")).isChecked());
    line(workspaces, QStringLiteral("Drafting")).trigger();
    EXPECT_TRUE(windows().isOnScreen(findPanels(windows(), L"HouseTools").at(0)->m_hWnd));
    EXPECT_FALSE(windows().isOnScreen(findPanels(windows(), L"Light").at(0)->m_hWnd));
    EXPECT_TRUE(lines(menu("&Profile")).contains(QStringLiteral("Default")));
    line(menu("&Document"), QStringLiteral("&New")).trigger();
    EXPECT_EQ(editor().documents().active()->name(), L"Drawing1");
    line(menu("&Document"), QStringLiteral("house.json")).trigger();
    EXPECT_EQ(editor().documents().active()->name(), L"house.json");
    line(menu("&Document"), QStringLiteral("&Close")).trigger();
    EXPECT_EQ(editor().documents().active()->name(), L"Drawing1");
}

TEST_F(MainWindowTest, AWorkspaceShowsTheSamePanelsWhenItComesBack) {
    const auto shown = [this] {
        std::vector<std::wstring> ids;
        for (const CQrUiPanel* panel : allPanels(windows())) {
            if (windows().isOnScreen(panel->m_hWnd))
                ids.push_back(panel->GetID());
        }
        return ids;
    };
    m_window.stage().pump.act([this] { showPanelsOfWorkspace(m_workbench); });
    const std::vector<std::wstring> before = shown();
    line(menu("&Workspace"), QStringLiteral("Drafting")).trigger();
    EXPECT_NE(shown(), before);
    line(menu("&Workspace"), QStringLiteral("3D Modeling")).trigger();
    EXPECT_EQ(shown(), before);
}

TEST_F(MainWindowTest, TheMenusShowTheirShortcuts) {
    const auto shortcutOf = [this](const char* title, const char* text) {
        return line(menu(title), QString::fromLatin1(text)).shortcut().toString();
    };
    EXPECT_EQ(shortcutOf("&Document", "&New"), QStringLiteral("Ctrl+N"));
    EXPECT_EQ(shortcutOf("&Document", "&Open..."), QStringLiteral("Ctrl+O"));
    EXPECT_EQ(shortcutOf("&Document", "&Save"), QStringLiteral("Ctrl+S"));
    EXPECT_EQ(shortcutOf("&Document", "&Quit"), QStringLiteral("Ctrl+Q"));
    EXPECT_EQ(shortcutOf("&Edit", "&Undo"), QStringLiteral("Ctrl+Z"));
    EXPECT_EQ(shortcutOf("&Help", "The &dashboard"), QStringLiteral("F1"));
}

TEST_F(MainWindowTest, AWindowWithoutADrawingSaysHowToGetOne) {
    const QColor plain = lookOf(Shade::Light).drawing;
    line(menu("&Document"), QStringLiteral("&Close")).trigger();
    EXPECT_EQ(m_window.documentTabs().count(), 0);
    const QImage image = m_window.documentTabs().grab().toImage();
    EXPECT_EQ(image.pixelColor(5, 5), plain);
    int inked = 0;
    for (int x = 0; x < image.width(); ++x)
        inked += image.pixelColor(x, image.height() / 2) != plain ? 1 : 0;
    for (int y = 0; y < image.height(); ++y)
        inked += image.pixelColor(image.width() / 2, y) != plain ? 1 : 0;
    EXPECT_GT(inked, 0);
}

TEST_F(MainWindowTest, TheDrawingIsFittedIntoItsView) {
    const drawing::Database& data = editor().documents().active()->data();
    const auto width = [&data] {
        return data.look<drawing::Viewport>(drawing::activeViewport(data))->view.width;
    };
    DrawingView& view = m_window.documentTabs().viewAt(0);
    const double before = width();
    turnWheel(view, -10);
    EXPECT_GT(width(), before);
    line(menu("&View"), QStringLiteral("&Fit the drawing")).trigger();
    const double fit = width();
    EXPECT_LT(fit, before * 3);
    turnWheel(view, -10);
    line(menu("&View"), QStringLiteral("&Fit the drawing")).trigger();
    EXPECT_NEAR(width() / fit, 1.0, 0.2);
}

TEST_F(MainWindowTest, ToReadThePanelsAnewLeavesTheirValuesInPlace) {
    const auto shown = [this] {
        std::vector<std::wstring> texts;
        for (const HWND each :
             windows().descendants(m_workbench.toolkit().frame().frame().m_hWnd)) {
            const Window& window = *windows().find(each);
            if (window.className != "CQrUiInputEditCtrl" || !windows().isOnScreen(each))
                continue;
            texts.push_back(window.text);
        }
        return texts;
    };
    enter("LAYLOCKFADECTL");
    enter("35");
    enter("STEPSIZE");
    enter("2.5");
    rest();
    const std::vector<std::wstring> before = shown();
    ASSERT_GT(before.size(), 5U);
    line(menu("&Workspace"), QStringLiteral("Read the &panels anew")).trigger();
    rest();
    EXPECT_EQ(shown(), before);
}

TEST_F(MainWindowTest, TheViewMenuHidesShowsAndResetsTheDashboard) {
    CQrUiPaletteSet& set = *m_workbench.toolkit().frame().bars().front();
    line(menu("&View"), QStringLiteral("Show or hide the &dashboard")).trigger();
    EXPECT_FALSE(windows().isOnScreen(set.m_hWnd));
    line(menu("&View"), QStringLiteral("Show or hide the &dashboard")).trigger();
    EXPECT_TRUE(windows().isOnScreen(set.m_hWnd));
    m_workbench.toolkit().frame().floatAt(set, {100, 100, 340, 500});
    line(menu("&View"), QStringLiteral("&Reset the layout")).trigger();
    EXPECT_FALSE(set.IsFloating());
}

TEST_F(MainWindowTest, TheViewMenuComparesWhatIsOnShowWithTheHost) {
    const auto* log = m_window.commandLine().findChild<QPlainTextEdit*>();
    line(menu("&View"), QStringLiteral("&Compare with the host")).trigger();
    EXPECT_TRUE(
        log->toPlainText().endsWith(QStringLiteral("All that is on show agrees with the host.")));
    m_workbench.faults().fail("vxedGetVar");
    m_workbench.editor().set(L"LAYLOCKFADECTL", 70);
    m_workbench.faults().unfail("vxedGetVar");
    line(menu("&View"), QStringLiteral("&Compare with the host")).trigger();
    EXPECT_TRUE(log->toPlainText().contains(
        QStringLiteral("LayerLockTransparencySliderControl: slider shows \"1\" for \"70\".")));
}

TEST_F(MainWindowTest, TextsOfFieldsFitBesideLargeTools) {
    setIconSize(m_workbench, 32);
    for (const char* name : {"LayerLockTransparencySliderControl", "3DNavStepSizeSliderControl",
                             "3DNavStepsPerSecSliderControl"}) {
        const Window& field =
            *windows().find(findPart(windows(), windows().findByName(name), "edit"));
        auto& edit = static_cast<EditWidget&>(*field.widget);
        const auto seen = static_cast<int>(field.text.size() - edit.scrolled(field));
        EXPECT_GE(field.rect.Width(),
                  EditWidget::kCharacterWidth * seen + 2 * EditWidget::kTextMargin)
            << name;
    }
}

TEST_F(MainWindowTest, TheDashboardsEdgeIsDragged) {
    const HWND bar = m_workbench.toolkit().frame().bars().front()->m_hWnd;
    const auto width = [&] { return windows().screenRect(bar).Width(); };
    QWidget* edge = nullptr;
    for (QWidget* each : m_window.centralWidget()->findChildren<QWidget*>()) {
        if (each->accessibleName() == QLatin1String("Edge of the dashboard"))
            edge = each;
    }
    ASSERT_NE(edge, nullptr);
    const int before = width();
    EXPECT_EQ(edge->geometry().right() + 1, windows().screenRect(bar).left);
    press(*edge, {2, 300});
    moveHeld(*edge, {-58, 300});
    EXPECT_EQ(width(), before + 60);
    EXPECT_EQ(edge->geometry().right() + 1, windows().screenRect(bar).left);
    moveHeld(*edge, {900, 300});
    EXPECT_GE(width(), 120) << "as narrow as the palettes allow";
    release(*edge, {900, 300});
    m_window.stage().pump.act([this] { toggleDashboard(m_workbench); });
    EXPECT_FALSE(edge->isVisible());
}

TEST_F(MainWindowTest, ToolsCanBeLarge) {
    const CRect before =
        windows().screenRect(toolPanelOf(*findItems(windows(), L"ID_Free_Orbit").at(0))->m_hWnd);
    m_window.stage().pump.act([this] { setIconSize(m_workbench, 32); });
    const CRect after =
        windows().screenRect(toolPanelOf(*findItems(windows(), L"ID_Free_Orbit").at(0))->m_hWnd);
    EXPECT_GT(after.Height(), before.Height());
}

TEST_F(MainWindowTest, TheLanguageChangesNumbersFromThenOn) {
    EXPECT_EQ(GetLocaleInfo(LOCALE_SDECIMAL), L".");
    m_window.setLocale("de_DE");
    EXPECT_EQ(m_workbench.options().locale, "de_DE");
    EXPECT_EQ(GetLocaleInfo(LOCALE_SDECIMAL), L",");
}

TEST_F(MainWindowTest, AFailureIsToldInTheStatusBar) {
    m_window.stage().pump.act([this] { editor().documents().open("/no/such.json"); });
    EXPECT_TRUE(m_window.statusBar()->currentMessage().startsWith(QLatin1String("/no/such.json")));
}

TEST_F(MainWindowTest, PicturesShowTheDashboardOrTheWholeWindow) {
    const QTemporaryDir folder;
    const std::string file = folder.filePath(QStringLiteral("a.png")).toStdString();
    m_window.takePicture(file, false);
    const QImage dashboard(QString::fromStdString(file));
    EXPECT_EQ(dashboard.width(), 235);
    m_window.takePicture(file, true);
    EXPECT_EQ(QImage(QString::fromStdString(file)).size(), m_window.size());
    EXPECT_THROW(m_window.takePicture("/no/such/folder/a.png", false), InputError);
    m_window.stage().pump.act([this] { toggleDashboard(m_workbench); });
    EXPECT_THROW(m_window.takePicture(file, false), InputError);
}

TEST_F(MainWindowTest, APictureHoldsTheWholeDashboardThoughTheWindowIsLow) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("a.png"));
    m_window.takePicture(file.toStdString(), false);
    const int whole = QImage(file).height();
    m_window.resize(1000, 400);
    m_window.takePicture(file.toStdString(), false);
    EXPECT_EQ(QImage(file).height(), whole);
    EXPECT_EQ(m_window.height(), 400);
}

TEST_F(MainWindowTest, AFloatingDashboardIsPicturedToo) {
    const QTemporaryDir folder;
    const std::string file = folder.filePath(QStringLiteral("a.png")).toStdString();
    CQrUiPaletteSet& set = *m_workbench.toolkit().frame().bars().front();
    m_window.stage().pump.act([&] {
        m_workbench.toolkit().frame().floatAt(set, {100, 100, 400, 600});
    });
    m_window.takePicture(file, false);
    EXPECT_EQ(QImage(QString::fromStdString(file)).width(), 300);
}

/// The parts that a user can do something with.
bool isUsable(QAccessible::Role role) {
    constexpr QAccessible::Role kUsable[] = {
        QAccessible::Button,  QAccessible::ButtonMenu, QAccessible::CheckBox,
        QAccessible::Slider,  QAccessible::ComboBox,   QAccessible::EditableText,
        QAccessible::Link,    QAccessible::Table,      QAccessible::PageTab,
        QAccessible::MenuBar, QAccessible::MenuItem,
    };
    return std::find(std::begin(kUsable), std::end(kUsable), role) != std::end(kUsable);
}

void expectNames(QAccessibleInterface& node, int& usable) {
    const bool isSeen = !node.state().invisible;
    if (isSeen && isUsable(node.role()) && node.role() != QAccessible::MenuBar) {
        ++usable;
        EXPECT_FALSE(node.text(QAccessible::Name).isEmpty())
            << "role " << node.role() << " at " << node.rect().x() << ", " << node.rect().y()
            << " in "
            << (node.parent() == nullptr ? std::string()
                                         : node.parent()->text(QAccessible::Name).toStdString());
    }
    for (int i = 0; i < node.childCount(); ++i) {
        if (node.child(i) != nullptr)
            expectNames(*node.child(i), usable);
    }
}

TEST_F(MainWindowTest, NothingThatCanBeUsedIsWithoutAName) {
    m_window.findChild<QDockWidget*>()->show();
    QApplication::processEvents();
    int usable = 0;
    expectNames(*QAccessible::queryAccessibleInterface(&m_window), usable);
    EXPECT_GT(usable, 60);
}

TEST_F(MainWindowTest, RemembersThemeAndRolledUpPanels) {
    m_window.setShade(Shade::Dark);
    collapsePanels(m_workbench.toolkit(), {L"Layers", L"Light"});
    m_window.close();
    m_window.setShade(Shade::Light);
    collapsePanels(m_workbench.toolkit(), {L"Sun"});
    m_window.recall();
    EXPECT_EQ(m_window.shade(), Shade::Dark);
    EXPECT_EQ(collapsedPanels(m_workbench.toolkit()),
              (std::vector<std::wstring>{L"Layers", L"Light"}));
}

TEST_F(MainWindowTest, AStateThatCannotBeReadIsOnlyOverwrittenOnceSomethingChanges) {
    const QString file =
        QString::fromStdString((m_workbench.profiles().folder() / "desktop.json").string());
    const QByteArray half = R"({"theme": "da)";
    const auto content = [&file] {
        QFile reading(file);
        return reading.open(QIODevice::ReadOnly) ? reading.readAll() : QByteArray();
    };
    QFile writing(file);
    ASSERT_TRUE(writing.open(QIODevice::WriteOnly));
    writing.write(half);
    writing.close();
    m_window.recall();
    EXPECT_TRUE(m_window.statusBar()->currentMessage().startsWith(file));
    EXPECT_EQ(m_window.shade(), Shade::Light);
    m_window.rememberLook();
    EXPECT_EQ(content(), half);
    m_window.setShade(Shade::Dark);
    m_window.rememberLook();
    EXPECT_TRUE(content().contains("dark"));
    m_window.setShade(Shade::Light);
}

TEST_F(MainWindowTest, AThemeThatWasChosenIsRememberedAtOnce) {
    QMenu& view = menu("&View");
    line(*line(view, QStringLiteral("&Theme")).menu(), QStringLiteral("dark")).trigger();
    QString complaint;
    EXPECT_EQ(DesktopState::read(m_workbench.profiles().folder(), complaint).shade, Shade::Dark);
    m_window.setShade(Shade::Light);
}

TEST_F(MainWindowTest, AThemeOfAnotherVersionIsKeptUntilTheUserChoosesOne) {
    const std::filesystem::path folder = m_workbench.profiles().folder();
    DesktopState saved;
    saved.unknownTheme = "blue";
    saved.write(folder);
    m_window.recall();
    EXPECT_EQ(m_window.shade(), Shade::Light);
    EXPECT_TRUE(m_window.statusBar()->currentMessage().endsWith(
        QLatin1String("desktop.json: /theme: light or dark")));
    collapsePanels(m_workbench.toolkit(), {L"Layers"});
    m_window.rememberLook();
    QString complaint;
    const DesktopState kept = DesktopState::read(folder, complaint);
    EXPECT_EQ(kept.unknownTheme, "blue");
    EXPECT_EQ(kept.rolledUp, std::vector<std::wstring>{L"Layers"});
    m_window.setShade(Shade::Light);
    m_window.rememberLook();
    EXPECT_EQ(DesktopState::read(folder, complaint).shade, Shade::Light);
}

TEST_F(MainWindowTest, TheJournalPaneTakesWhatHappened) {
    enter("LUPREC");
    enter("6");
    EXPECT_TRUE(m_workbench.journal().records().empty());
    EXPECT_EQ(m_window.journalPane().copied(), QString());
    m_window.journalPane().parentWidget()->show();
    m_window.journalPane().filter().setText(QStringLiteral("LUPREC: "));
    EXPECT_TRUE(m_window.journalPane().copied().contains(QLatin1String("-> 6")));
}

}  // namespace
}  // namespace workbench::desktop
