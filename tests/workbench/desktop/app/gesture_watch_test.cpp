#include "workbench/desktop/app/gesture_watch.h"

#include "tests/workbench/desktop/app/main_window_fixture.h"
#include "workbench/desktop/panes/journal_pane.h"
#include "workbench/desktop/pump/pump.h"
#include "workbench/toolkit/slider_widget.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace workbench::desktop {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class GestureWatchTest : public testing::Test {
protected:
    GestureWatchTest() {
        m_pane.setRoadsShown(true);
        m_pane.show();
        m_button.setAccessibleName(QStringLiteral("Button"));
        m_pump.resume();
        settle();
    }

    /// The host comes to rest.
    static void settle() {
        QApplication::processEvents();
        QApplication::processEvents();
    }
    void happen(const char* name) { m_workbench.journal().add("dialog", {{"name", name}}); }
    /// The gestures that something came of, with what came.
    std::vector<std::string> roads() {
        m_pane.takeOver();
        std::vector<std::string> texts;
        for (int i = 0; i < m_pane.roads().topLevelItemCount(); ++i) {
            const QTreeWidgetItem& road = *m_pane.roads().topLevelItem(i);
            std::string text = road.text(0).toStdString() + ":";
            for (int step = 0; step < road.childCount(); ++step)
                text +=
                    ' ' + road.child(step)->text(0).section(QLatin1Char('"'), 1, 1).toStdString();
            texts.push_back(text);
        }
        return texts;
    }

    Workbench m_workbench{testOptions()};
    Pump m_pump{m_workbench};
    JournalPane m_pane{m_workbench.journal()};
    GestureWatch m_watch{m_pump, m_pane};
    QWidget m_button;
};

TEST_F(GestureWatchTest, AGestureGoesFromPressToReleaseHoweverLongThatTakes) {
    happen("before");
    press(m_button, {1, 1});
    happen("held");
    settle();
    m_pump.act([this] { happen("dragged"); });
    settle();
    happen("still");
    release(m_button, {1, 1});
    settle();
    happen("later");
    EXPECT_THAT(roads(), ElementsAre("Press on Button: held dragged still"));
}

TEST_F(GestureWatchTest, ItsEchoesUpToTheIdleTickAreItsOwn) {
    press(m_button, {1, 1});
    release(m_button, {1, 1});
    m_pump.act([this] { happen("echo"); });
    happen("ahead of the idle tick");
    settle();
    EXPECT_FALSE(m_pump.isBusy());
    m_pump.act([this] { happen("script"); });
    settle();
    happen("later");
    EXPECT_THAT(roads(), ElementsAre("Press on Button: echo ahead of the idle tick"));
}

TEST_F(GestureWatchTest, KeysWheelAndDoubleClicksAreGesturesToo) {
    QKeyEvent down(QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier);
    QApplication::sendEvent(&m_button, &down);
    happen("one");
    QKeyEvent up(QEvent::KeyRelease, Qt::Key_F2, Qt::NoModifier);
    QApplication::sendEvent(&m_button, &up);
    settle();
    happen("none");
    turnWheel(m_button, 1);
    happen("two");
    settle();
    happen("none");
    sendMouse(m_button, QEvent::MouseButtonDblClick, {1, 1}, Qt::LeftButton, Qt::LeftButton);
    happen("three");
    EXPECT_THAT(roads(), ElementsAre("Key F2: one", "Wheel on Button: two",
                                     "Double click on Button: three"));
}

TEST_F(GestureWatchTest, OfTwoButtonsTheLastReleaseEndsIt) {
    press(m_button, {1, 1});
    sendMouse(m_button, QEvent::MouseButtonRelease, {1, 1}, Qt::RightButton, Qt::LeftButton);
    settle();
    happen("held");
    release(m_button, {1, 1});
    settle();
    happen("later");
    EXPECT_THAT(roads(), ElementsAre("Press on Button: held"));
}

TEST_F(GestureWatchTest, WithoutAGestureThereIsNoRoad) {
    m_pump.act([this] { happen("script"); });
    settle();
    EXPECT_THAT(roads(), IsEmpty());
}

/// The dashboard's own gestures.
class GestureRoadTest : public MainWindowTest {
protected:
    GestureRoadTest() {
        m_window.journalPane().parentWidget()->show();
        m_window.journalPane().setRoadsShown(true);
        QApplication::processEvents();
    }

    /// The title of the last gesture that something came of, then its steps.
    QStringList lastRoad() {
        rest();
        const GestureRoads& roads = m_window.journalPane().roads();
        const QTreeWidgetItem& last = *roads.topLevelItem(roads.topLevelItemCount() - 1);
        QStringList lines(last.text(0));
        for (int step = 0; step < last.childCount(); ++step)
            lines.append(last.child(step)->text(0));
        return lines;
    }
};

TEST_F(GestureRoadTest, TheRoadOfOneGestureIsOneGroupOfTheJournal) {
    MirrorWidget* const field = edit();
    click(*field);
    pressKey(*field, Qt::Key_A, QStringLiteral("\x01"), Qt::ControlModifier);
    typeText(*field, QStringLiteral("35"));
    pressKey(*field, Qt::Key_Return);
    const QStringList road = lastRoad();
    EXPECT_TRUE(road.first().startsWith(QLatin1String("Key ")));
    EXPECT_EQ(road.filter(QStringLiteral("LAYLOCKFADECTL: 50 -> 35")).size(), 1);
    EXPECT_FALSE(road.filter(QStringLiteral("1727")).isEmpty()) << "the echo to all controls";
}

TEST_F(GestureRoadTest, WhatATimerWritesBehindADragIsNotOnItsRoad) {
    const HWND window =
        findPart(windows(), windows().findByName("LayerLockTransparencySliderControl"), "slider");
    MirrorWidget* const slider = m_window.mirror().widgetOf(window);
    const auto* shown = dynamic_cast<SliderWidget*>(slider->host()->widget.get());
    const SliderScale scale = shown->scale(*slider->host());
    m_window.stage().pump.hold();
    press(*slider, {scale.middleAt(50), 8});
    moveHeld(*slider, {scale.middleAt(20), 8});
    release(*slider, {scale.middleAt(20), 8});
    QApplication::processEvents();
    const QStringList road = lastRoad();
    ASSERT_GT(road.size(), 1);
    windows().advance(500);
    EXPECT_NE(editor().read(L"LAYLOCKFADECTL"), Value(50)) << "it has written";
    EXPECT_EQ(lastRoad(), road);
}

}  // namespace
}  // namespace workbench::desktop
