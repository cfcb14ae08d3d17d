#pragma once

#include "tests/workbench/desktop/events.h"
#include "tests/workbench/host/test_options.h"
#include "workbench/base/text.h"
#include "workbench/desktop/app/frame_home.h"
#include "workbench/desktop/mirror/item_widget.h"
#include "workbench/desktop/mirror/mirror_widget.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/desktop/mirror/window_mirror.h"
#include "workbench/editor/editor.h"
#include "workbench/startup/open_dashboard.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_parts.h"
#include "workbench/windows/window_system.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <string>
#include <vector>

namespace workbench::desktop {

/// Test fixture: the example drawing with the dashboard, mirrored into a window.
class MirrorTest : public testing::Test {
protected:
    MirrorTest() {
        m_top.resize(1100, 1500);
        m_home.resize(m_top.size());
        m_home.attach(m_stage);
        m_top.show();
        m_pump.resume();
        openDashboard(m_workbench, PROJECT_SOURCE_ROOT "/examples/house.json");
        rest();
        m_workbench.journal().take();
    }

    WindowSystem& windows() { return m_workbench.windows(); }
    Editor& editor() { return m_workbench.editor(); }
    /// Lets the host come round and the widgets follow.
    void rest() {
        m_pump.act([] {});
        m_mirror.sync();
    }
    HWND window(const std::string& control, const char* part = nullptr) {
        const HWND found = windows().findByName(control);
        return part == nullptr ? found : findPart(windows(), found, part);
    }
    MirrorWidget* widget(HWND handle) { return m_mirror.widgetOf(handle); }
    MirrorWidget* widget(const std::string& control, const char* part = nullptr) {
        return widget(window(control, part));
    }
    ItemWidget* item(const std::wstring& id) {
        CQrUiToolPanelItem* wanted = findItems(windows(), id).at(0);
        MirrorWidget* panel = widget(toolPanelOf(*wanted)->m_hWnd);
        for (ItemWidget* each : panel->items()) {
            if (each->item() == wanted)
                return each;
        }
        return nullptr;
    }
    /// The texts of the commands sent since the last look.
    std::vector<std::string> sent() {
        std::vector<std::string> texts;
        for (const JournalRecord& record : m_workbench.journal().take("command")) {
            if (!record.field("way").isNil())
                texts.push_back(record.field("text").asString());
        }
        return texts;
    }
    std::wstring text(const std::string& control, const char* part = "edit") {
        return windows().find(window(control, part))->text;
    }

    static constexpr const char* kFade = "LayerLockTransparencySliderControl";
    static constexpr const char* kViews = "3DNavViewComboCtrl";

    Workbench m_workbench{testOptions(PROJECT_SOURCE_ROOT "/examples/panels.json")};
    Pump m_pump{m_workbench};
    Stage m_stage{m_workbench, m_pump, Shade::Light};
    QWidget m_top;
    FrameHome m_home{&m_top};
    WindowMirror m_mirror{m_stage, m_home};
};

}  // namespace workbench::desktop
