#include "tests/workbench/desktop/bus/assistive_reader.h"
#include "tests/workbench/desktop/events.h"
#include "tests/workbench/host/test_options.h"
#include "workbench/desktop/app/main_window.h"
#include "workbench/desktop/look/fonts.h"
#include "workbench/desktop/mirror/accessible.h"
#include "workbench/desktop/mirror/item_widget.h"
#include "workbench/desktop/mirror/mirror_widget.h"
#include "workbench/desktop/mirror/window_mirror.h"
#include "workbench/startup/open_dashboard.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/windows/window_parts.h"
#include "workbench/windows/window_system.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QMenu>
#include <QTimer>
#include <clocale>
#include <functional>
#include <string>
#include <vector>

namespace workbench::desktop {
namespace {

using Names = std::vector<std::string>;

struct MenuReading {
    Names lines;
    Names focused;
    Names moves;   // of the keyboard
    QPoint place;  // on the screen
};

/// The lines of the menus on parts of the dashboard, an object's and all below it.
void collectMenuLines(const BusObject& object, Names& lines) {
    for (const BusObject& child : object.children) {
        if (object.role == "panel" && child.role == "popup menu") {
            for (const BusObject& line : child.children)
                lines.push_back(line.name);
        }
        collectMenuLines(child, lines);
    }
}

/// The window, with an assistive program that reads it over the bus.
class BusTest : public testing::Test {
protected:
    BusTest() {
        m_window.resize(1200, 900);
        m_window.move(0, 0);
        m_window.show();
        m_window.stage().pump.resume();
        m_window.stage().pump.act(
            [this] { openDashboard(m_workbench, PROJECT_SOURCE_ROOT "/examples/house.json"); });
        m_window.activateWindow();
        waitFor([this] { return m_window.isActiveWindow() && m_reader.isConnected(); });
        settle();
        m_reader.takeFocusMoves();
    }

    /// Lets Qt run until something holds, for five seconds at most.
    template <class Condition>
    static bool waitFor(Condition condition) {
        QElapsedTimer timer;
        timer.start();
        while (!condition() && timer.elapsed() < 5000)
            QApplication::processEvents(QEventLoop::AllEvents, 10);
        return condition();
    }
    /// The host comes to rest, and what that brings is on the bus: it keeps the order.
    void settle() {
        waitFor([this] { return !m_window.stage().pump.isBusy(); });
        m_window.mirror().sync();
        QApplication::processEvents();
        m_reader.isConnected();
    }
    MirrorWidget* part(const char* control, const char* name) {
        WindowSystem& windows = m_workbench.windows();
        return m_window.mirror().widgetOf(findPart(windows, windows.findByName(control), name));
    }
    ItemWidget* item(const wchar_t* id) {
        const CQrUiToolPanelItem* const wanted = findItems(m_workbench.windows(), id).at(0);
        for (ItemWidget* each : m_window.mirror().widgetOf(toolPanelOf(*wanted)->m_hWnd)->items()) {
            if (each->item() == wanted)
                return each;
        }
        return nullptr;
    }
    void giveKeyboard(HWND window) {
        m_window.stage().pump.act([&] { m_workbench.windows().setFocus(window); });
        settle();
    }
    /// The names of all that have the keyboard. Qt says so of the chosen tab of each row, too.
    Names focused() {
        Names names;
        for (const BusObject& object : withKeyboard(m_reader.read())) {
            if (object.role != "page tab")
                names.push_back(object.name);
        }
        return names;
    }

    /// What is read of a menu that something opens, once Down was pressed in it.
    MenuReading readMenu(const std::function<void()>& open) {
        MenuReading reading;
        m_reader.takeFocusMoves();
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (menu == nullptr)
                return;
            watch.stop();
            reading.place = menu->pos();
            pressKey(*menu, Qt::Key_Down);
            collectMenuLines(m_reader.read(), reading.lines);
            reading.focused = focused();
            reading.moves = m_reader.takeFocusMoves();
            menu->close();
        });
        watch.start(10);
        open();
        return reading;
    }

    Workbench m_workbench{testOptions(PROJECT_SOURCE_ROOT "/examples/panels.json")};
    AssistiveReader m_reader;
    MainWindow m_window{m_workbench, Shade::Light};
};

TEST_F(BusTest, AFieldThatGetsTheKeyboardIsAnnouncedAndHasItAlone) {
    giveKeyboard(part("LayerLockTransparencySliderControl", "edit")->handle());
    EXPECT_EQ(m_reader.takeFocusMoves(),
              (Names{"-Command line", "Locked layer fading in percent"}));
    EXPECT_EQ(focused(), Names{"Locked layer fading in percent"});
}

TEST_F(BusTest, EachToolThatTheKeyboardMarksIsAnnounced) {
    auto* const panel = static_cast<MirrorWidget*>(item(L"ID_Parallel_Projection")->parentWidget());
    giveKeyboard(panel->handle());
    const Names first = focused();
    ASSERT_EQ(first.size(), 1U);
    EXPECT_EQ(m_reader.takeFocusMoves().back(), first.front());
    pressKey(*panel, Qt::Key_Right);
    settle();
    const Names second = focused();
    ASSERT_EQ(second.size(), 1U);
    EXPECT_NE(second, first);
    EXPECT_EQ(m_reader.takeFocusMoves(), (Names{"-" + first.front(), second.front()}));
}

TEST_F(BusTest, AFlyoutOpensAMenuOfNamedLinesThatTakesTheKeyboard) {
    ItemWidget* const flyout = item(L"TPL_0042");
    const MenuReading reading = readMenu([flyout] {
        click(*flyout->parentWidget(), flyout->geometry().topRight() + QPoint(-3, 8));
    });
    EXPECT_EQ(reading.lines, (Names{"Generic lighting units", "American lighting units",
                                    "International lighting units"}));
    EXPECT_EQ(reading.focused, Names{"Generic lighting units"});
    ASSERT_FALSE(reading.moves.empty());
    EXPECT_EQ(reading.moves.back(), "Generic lighting units");
    settle();
    EXPECT_EQ(focused().size(), 1U);
}

TEST_F(BusTest, OpenedByTheKeyboardTheMenuStandsAtItsFlyout) {
    ItemWidget* const flyout = item(L"TPL_0042");
    auto* const panel = static_cast<MirrorWidget*>(flyout->parentWidget());
    giveKeyboard(panel->handle());
    pressKey(*panel, Qt::Key_Home);
    for (int step = 0; step < 20 && !flyout->isMarked(); ++step)
        pressKey(*panel, Qt::Key_Right);
    settle();
    EXPECT_EQ(focused(), Names{"Lighting units"});
    const MenuReading reading = readMenu([panel] { pressKey(*panel, Qt::Key_Down); });
    EXPECT_EQ(reading.lines.size(), 3U);
    EXPECT_EQ(reading.focused, Names{"Generic lighting units"});
    EXPECT_EQ(reading.place, flyout->mapToGlobal(flyout->rect().bottomLeft()));
}

}  // namespace
}  // namespace workbench::desktop

// Drawn on the screen that DISPLAY names, and told on the bus of the session.
int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    const QApplication application(count, arguments);
    QApplication::setFont(workbench::desktop::fontOf(nullptr));
    workbench::desktop::installAccessibility();
    std::setlocale(LC_NUMERIC, "C");
    return RUN_ALL_TESTS();
}
