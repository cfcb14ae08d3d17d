#pragma once

#include "tests/workbench/desktop/events.h"
#include "tests/workbench/host/test_options.h"
#include "workbench/desktop/app/main_window.h"
#include "workbench/desktop/mirror/mirror_widget.h"
#include "workbench/desktop/mirror/window_mirror.h"
#include "workbench/desktop/panes/command_line.h"
#include "workbench/editor/editor.h"
#include "workbench/startup/open_dashboard.h"
#include "workbench/windows/window_parts.h"
#include "workbench/windows/window_system.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <stdexcept>

namespace workbench::desktop {

/// Test fixture: the window with the example drawing and the dashboard, and its user's verbs.
class MainWindowTest : public testing::Test {
protected:
    MainWindowTest() {
        m_window.resize(1000, 800);
        m_window.show();
        m_window.stage().pump.resume();
        openDashboard(m_workbench, PROJECT_SOURCE_ROOT "/examples/house.json");
        rest();
    }

    Editor& editor() { return m_workbench.editor(); }
    WindowSystem& windows() { return m_workbench.windows(); }
    void rest() {
        m_window.stage().pump.act([] {});
        m_window.mirror().sync();
    }
    MirrorWidget* edit() {
        const HWND control = windows().findByName("LayerLockTransparencySliderControl");
        return m_window.mirror().widgetOf(findPart(windows(), control, "edit"));
    }
    void enter(const char* text) {
        m_window.commandLine().input().setText(QString::fromLatin1(text));
        pressKey(m_window.commandLine().input(), Qt::Key_Return);
    }
    /// The menu of a title, as it opens; and one of its lines.
    QMenu& menu(const char* title) {
        for (QAction* action : m_window.menuBar()->actions()) {
            if (action->text() == QLatin1String(title)) {
                Q_EMIT action->menu()->aboutToShow();
                return *action->menu();
            }
        }
        throw std::logic_error(title);
    }
    QAction& line(QMenu& menu, const QString& text) {
        for (QAction* action : menu.actions()) {
            if (action->text() == text)
                return *action;
        }
        throw std::logic_error(text.toStdString());
    }
    QStringList lines(QMenu& menu) {
        QStringList texts;
        for (QAction* action : menu.actions())
            texts.append(action->text());
        return texts;
    }

    Workbench m_workbench{testOptions(PROJECT_SOURCE_ROOT "/examples/panels.json")};
    MainWindow m_window{m_workbench, Shade::Light};
};

}  // namespace workbench::desktop
