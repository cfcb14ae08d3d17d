#pragma once

#include "workbench/host/workbench.h"
#include "workbench/windows/window_system.h"

#include <hostapi/window.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace workbench {

/// A message that a window got.
struct Got {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    friend bool operator==(const Got&, const Got&) = default;
};

/// A window that writes down what it gets and can be told what to do then.
class TestWindow : public CWnd {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        got.push_back({message, wParam, lParam});
        if (onMessage)
            onMessage(message);
        return answer != 0 ? answer : CWnd::WindowProc(message, wParam, lParam);
    }
    BOOL PreTranslateMessage(MSG* msg) override {
        if (onPreTranslate)
            return onPreTranslate(*msg);
        return CWnd::PreTranslateMessage(msg);
    }

    /// How often a message came.
    int count(UINT message) const {
        int found = 0;
        for (const Got& each : got)
            found += each.message == message ? 1 : 0;
        return found;
    }

    std::vector<Got> got;
    std::function<void(UINT)> onMessage;
    std::function<BOOL(const MSG&)> onPreTranslate;
    LRESULT answer = 0;  // not 0: the answer to everything
};

/// An edit field's side of the focus.
class FocusReporter : public Widget {
public:
    bool reportsFocus() const override { return true; }
    bool holdsTyping(const Window& /*window*/) const override { return typed; }

    bool typed = false;  // by the user
};

/// A workbench whose windows the tests make by hand.
class WindowTest : public testing::Test {
protected:
    WindowSystem& windows() { return m_workbench.windows(); }
    Clock& clock() { return m_workbench.clock(); }
    Journal& journal() { return m_workbench.journal(); }

    /// How many windows live that the host's own units didn't make.
    std::size_t windowCount() { return windows().count() - m_hostWindows; }

    /// Makes a visible window, 100 by 50 pixels at (10, 20) of its parent.
    bool make(CWnd& object, CWnd* parent = nullptr, int id = 0,
              std::unique_ptr<Widget> widget = nullptr, const char* className = "Test") {
        WindowCreation creation;
        creation.className = className;
        creation.style = WS_VISIBLE;
        creation.rect = {10, 20, 110, 70};
        creation.parent = parent == nullptr ? nullptr : parent->m_hWnd;
        creation.id = id;
        creation.widget = std::move(widget);
        return windows().create(object, std::move(creation));
    }

    bool makeEdit(CWnd& object, CWnd& parent, int id) {
        return make(object, &parent, id, std::make_unique<FocusReporter>(), "CQrUiInputEditCtrl");
    }

private:
    Workbench m_workbench{WorkbenchOptions{}};
    std::size_t m_hostWindows = m_workbench.windows().count();
};

}  // namespace workbench
