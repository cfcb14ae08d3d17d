#include "tests/workbench/host/test_options.h"
#include "workbench/desktop/app/main_window.h"
#include "workbench/desktop/look/fonts.h"
#include "workbench/desktop/mirror/mirror_widget.h"
#include "workbench/desktop/mirror/window_mirror.h"
#include "workbench/desktop/panes/command_line.h"
#include "workbench/desktop/panes/search_box.h"
#include "workbench/editor/editor.h"
#include "workbench/startup/open_dashboard.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/slider_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_parts.h"
#include "workbench/windows/window_system.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QProcess>
#include <QTimer>
#include <QToolTip>
#include <clocale>

namespace workbench::desktop {
namespace {

constexpr int kPauseMs = 40;  // or moves that follow each other are taken as one
constexpr const char* kFade = "LayerLockTransparencySliderControl";

/// The window on a screen, with a user's hands on mouse and keyboard of that screen.
class ScreenTest : public testing::Test {
protected:
    ScreenTest() {
        m_window.resize(1200, 900);
        m_window.move(0, 0);
        m_window.show();
        m_window.stage().pump.resume();
        m_window.stage().pump.act(
            [this] { openDashboard(m_workbench, PROJECT_SOURCE_ROOT "/examples/house.json"); });
        pause(400);
        hands({QStringLiteral("windowfocus"), QString::number(m_window.winId())});
    }

    static void pause(int milliseconds = kPauseMs) {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < milliseconds)
            QApplication::processEvents(QEventLoop::AllEvents, 5);
    }
    static void hands(const QStringList& arguments) {
        ASSERT_EQ(QProcess::execute(QStringLiteral("xdotool"), arguments), 0);
        pause();
    }
    static void moveTo(QPoint point) {
        hands(
            {QStringLiteral("mousemove"), QString::number(point.x()), QString::number(point.y())});
    }
    static void clickAt(QPoint point, int button = 1) {
        moveTo(point);
        hands({QStringLiteral("click"), QString::number(button)});
    }
    MirrorWidget* part(const char* name) {
        return m_window.mirror().widgetOf(
            findPart(m_workbench.windows(), m_workbench.windows().findByName(kFade), name));
    }
    std::int64_t fading() { return m_workbench.editor().read(L"LAYLOCKFADECTL").asInteger(); }

    Workbench m_workbench{testOptions(PROJECT_SOURCE_ROOT "/examples/panels.json")};
    MainWindow m_window{m_workbench, Shade::Light};
};

TEST_F(ScreenTest, TheFadeSliderIsDragged) {
    MirrorWidget* slider = part("slider");
    const auto* shown = dynamic_cast<SliderWidget*>(slider->host()->widget.get());
    const SliderScale scale = shown->scale(*slider->host());
    ASSERT_EQ(shown->position(), 50);
    moveTo(slider->mapToGlobal(QPoint(scale.middleAt(50), 8)));
    hands({QStringLiteral("mousedown"), QStringLiteral("1")});
    moveTo(slider->mapToGlobal(QPoint(scale.middleAt(40), 8)));
    moveTo(slider->mapToGlobal(QPoint(scale.middleAt(20), 8)));
    hands({QStringLiteral("mouseup"), QStringLiteral("1")});
    pause(600);
    EXPECT_NEAR(shown->position(), 20, 1);
    EXPECT_EQ(fading(), shown->position());
}

TEST_F(ScreenTest, ItsFieldTakesWhatIsTyped) {
    MirrorWidget* edit = part("edit");
    clickAt(edit->mapToGlobal(edit->rect().center()));
    EXPECT_TRUE(edit->hasFocus());
    hands({QStringLiteral("key"), QStringLiteral("ctrl+a")});
    hands({QStringLiteral("type"), QStringLiteral("35")});
    hands({QStringLiteral("key"), QStringLiteral("Return")});
    pause(100);
    EXPECT_EQ(fading(), 35);
}

TEST_F(ScreenTest, FSixAndControlFBringTheKeyboardToDashboardAndSearch) {
    m_window.commandLine().input().setFocus();
    hands({QStringLiteral("key"), QStringLiteral("F6")});
    EXPECT_NE(dynamic_cast<MirrorWidget*>(QApplication::focusWidget()), nullptr);
    hands({QStringLiteral("key"), QStringLiteral("F6")});
    EXPECT_EQ(QApplication::focusWidget(), &m_window.commandLine().input());
    hands({QStringLiteral("key"), QStringLiteral("Tab")});
    EXPECT_NE(dynamic_cast<MirrorWidget*>(QApplication::focusWidget()), nullptr);
    hands({QStringLiteral("key"), QStringLiteral("ctrl+f")});
    EXPECT_EQ(QApplication::focusWidget(), &m_window.searchBox());
}

TEST_F(ScreenTest, WhatIsTypedBehindAClickInTheDrawingIsACommand) {
    MirrorWidget* edit = part("edit");
    clickAt(edit->mapToGlobal(edit->rect().center()));
    EXPECT_TRUE(edit->hasFocus());
    clickAt({500, 500});
    hands({QStringLiteral("type"), QStringLiteral("laylockfadectl")});
    EXPECT_EQ(m_window.commandLine().input().text(), QStringLiteral("laylockfadectl"));
    EXPECT_EQ(fading(), 50);
}

TEST_F(ScreenTest, NoToolShowsTheLensSlidersTooltip) {
    m_workbench.editor().set(L"PERSPECTIVE", 1);
    const CQrUiToolPanelItem& tool =
        *findItems(m_workbench.windows(), L"ID_Parallel_Projection").at(0);
    const MirrorWidget* panel = m_window.mirror().widgetOf(toolPanelOf(tool)->m_hWnd);
    CRect place;
    tool.GetRect(place, 1);
    moveTo(panel->mapToGlobal(QPoint(place.left + 4, place.top + 4)));
    pause(900);
    EXPECT_EQ(QToolTip::text(), QStringLiteral("Parallel projection"));
    moveTo({500, 500});
    pause(900);
    EXPECT_EQ(m_workbench.toolkit().toolTips().shown(), L"");
}

TEST_F(ScreenTest, APanelsContextMenuOpens) {
    MirrorWidget* panel =
        m_window.mirror().widgetOf(findPanels(m_workbench.windows(), L"Layers").at(0)->m_hWnd);
    QStringList lines;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr)
            return;
        watch.stop();
        for (const QAction* action : menu->actions())
            lines.append(action->text());
        QProcess::startDetached(QStringLiteral("xdotool"),
                                {QStringLiteral("key"), QStringLiteral("Escape")});
    });
    watch.start(10);
    clickAt(panel->mapToGlobal(QPoint(100, 10)), 3);
    pause(600);
    EXPECT_TRUE(lines.contains(QStringLiteral("Collapse")));
    EXPECT_TRUE(lines.contains(QStringLiteral("Customize...")));
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(ScreenTest, ControlZAtTheEmptyCommandLineTakesTheLastCommandBack) {
    m_window.commandLine().input().setFocus();
    hands({QStringLiteral("type"), QStringLiteral("line 0,0 9,9")});
    hands({QStringLiteral("key"), QStringLiteral("Return")});
    hands({QStringLiteral("key"), QStringLiteral("Return")});
    const drawing::Database& data = m_workbench.editor().documents().active()->data();
    const std::size_t drawn = data.ids(drawing::RecordKind::Entity).size();
    hands({QStringLiteral("key"), QStringLiteral("ctrl+z")});
    EXPECT_EQ(data.ids(drawing::RecordKind::Entity).size(), drawn - 1);
    hands({QStringLiteral("key"), QStringLiteral("ctrl+y")});
    EXPECT_EQ(data.ids(drawing::RecordKind::Entity).size(), drawn);
}

TEST_F(ScreenTest, ABalloonTakesTheClickOnIt) {
    MirrorWidget* edit = part("edit");
    clickAt(edit->mapToGlobal(edit->rect().center()));
    hands({QStringLiteral("key"), QStringLiteral("ctrl+a")});
    hands({QStringLiteral("type"), QStringLiteral("95")});
    hands({QStringLiteral("key"), QStringLiteral("Return")});
    pause(100);
    ASSERT_TRUE(m_workbench.toolkit().balloons().isShown());
    const QString text =
        QString::fromStdWString(m_workbench.toolkit().balloons().textOf(edit->host()->parent));
    QPointer<QLabel> bubble;
    for (QLabel* label : m_window.findChildren<QLabel*>()) {
        if (label->text() == text)
            bubble = label;
    }
    ASSERT_NE(bubble, nullptr);
    m_workbench.journal().take();
    clickAt(bubble->mapToGlobal(bubble->rect().center()));
    pause(100);
    EXPECT_EQ(bubble.data(), nullptr);
    EXPECT_FALSE(m_workbench.toolkit().balloons().isShown());
    EXPECT_EQ(m_workbench.windows().focus(), edit->handle());
    EXPECT_EQ(fading(), 50);
}

TEST_F(ScreenTest, ClosedWhileTheDashboardFloatsTheProgramEnds) {
    CQrUiPaletteSet& set = *m_workbench.toolkit().frame().bars().front();
    m_window.stage().pump.act([&] {
        m_workbench.toolkit().frame().floatAt(set, {300, 200, 540, 600});
    });
    pause(200);
    QTimer::singleShot(0, &m_window, [this] { m_window.close(); });
    QTimer watch;
    watch.setSingleShot(true);
    QObject::connect(&watch, &QTimer::timeout, [] { QApplication::exit(1); });
    watch.start(5000);
    EXPECT_EQ(QApplication::exec(), 0);
}

TEST_F(ScreenTest, TheDashboardIsDraggedOffAndFloats) {
    CQrUiPaletteSet& set = *m_workbench.toolkit().frame().bars().front();
    MirrorWidget* bar = m_window.mirror().widgetOf(set.m_hWnd);
    moveTo(bar->mapToGlobal(QPoint(30, 6)));
    hands({QStringLiteral("mousedown"), QStringLiteral("1")});
    moveTo({700, 300});
    moveTo({600, 320});
    const QWidget* frame =
        m_window.mirror().widgetOf(m_workbench.toolkit().frame().frameOf(set)->m_hWnd);
    const QPoint torn = frame->pos();
    moveTo({500, 370});
    hands({QStringLiteral("mouseup"), QStringLiteral("1")});
    pause(200);
    EXPECT_TRUE(set.IsFloating());
    EXPECT_EQ(frame->pos(), torn + QPoint(-100, 50)) << "it follows the mouse";
}

}  // namespace
}  // namespace workbench::desktop

// Drawn on the screen that DISPLAY names.
int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    const QApplication application(count, arguments);
    QApplication::setFont(workbench::desktop::fontOf(nullptr));
    std::setlocale(LC_NUMERIC, "C");
    return RUN_ALL_TESTS();
}
