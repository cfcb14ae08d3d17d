#pragma once

#include "tests/support/bench.h"
#include "tests/support/call_lines.h"
#include "workbench/windows/window_system.h"

#include <hostapi/vxdashboard.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Writes down what it hears.
class DashboardListener final : public VxDaDashboardReactor {
public:
    void panelsWillUnload() override { hear("willUnload"); }
    void panelsUnloaded() override { hear("unloaded"); }
    void panelsWillLoad() override { hear("willLoad"); }
    void panelsLoaded() override { hear("loaded"); }
    void controlsWillBeReleased() override { hear("release"); }
    void visibilityChanged(BOOL visible) override { hear(visible != 0 ? "on" : "off"); }

    /// What was heard since the last call.
    std::vector<std::string> take() { return std::exchange(m_heard, {}); }

    std::function<void(std::string_view)> act;  ///< run inside each call; empty: nothing

private:
    void hear(const char* event) {
        m_heard.emplace_back(event);
        if (act)
            act(event);
    }

    std::vector<std::string> m_heard;
};

using Heard = std::vector<std::string>;

/// The module with a listener, seen from the host and from one of the controls.
class ManagerTest : public support::Bench {
protected:
    static constexpr const char* kControl = "LayerLockTransparencySliderControl";

    void TearDown() override {
        // The module still tells of its end while the workbench goes.
        m_listener.act = nullptr;
        Bench::TearDown();
    }

    /// Loads the module, registers the listener and opens the document "A".
    void loadWithListener() {
        env("ENABLEDASHBOARD", "1");
        ASSERT_TRUE(load());
        addListener(m_listener);
        newDocument(L"A");
    }
    /// The same, with the dashboard on screen and nothing heard yet.
    void showWithListener() {
        loadWithListener();
        show();
        ASSERT_TRUE(isOnScreen());
        m_listener.take();
        takeJournal();
    }
    void addListener(VxDaDashboardReactor& listener) {
        exported<VxDaAddOrRemoveReactorFn>("VxDaAddOrRemoveReactor")(&listener, 1);
    }
    void removeListener(VxDaDashboardReactor& listener) {
        exported<VxDaAddOrRemoveReactorFn>("VxDaAddOrRemoveReactor")(&listener, 0);
    }
    void show() { type(L"DASHBOARDOLD\n"); }
    bool isOnScreen() { return paletteSet() != nullptr && paletteSet()->IsWindowVisible(); }
    /// What the frame was asked to do with the bar since the journal was taken.
    std::vector<std::string> takeBarCalls() {
        return support::callLines(takeJournal(), {"CFrameWnd::ShowControlBar"});
    }
    bool got(std::int64_t number) {
        const auto messages = takeMessagesOf(kControl);
        return std::find(messages.begin(), messages.end(), number) != messages.end();
    }

    DashboardListener m_listener;
};
