#pragma once

#include "tests/support/bench.h"
#include "tests/support/call_lines.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/vxdashboard.h>

#include <memory>
#include <string>
#include <vector>

/// Whether a call only looks an object of the host up.
inline bool isLookUp(const std::string& line) {
    return line.starts_with("vxrxSysRegistry(") || line.starts_with("VxRxDictionary::at(") ||
           line.starts_with("VxRxObject::isKindOf(") || line == "vxProfileManagerPtr()" ||
           line == "vxDocManagerPtr()" || line == "QrUiGetThemeManager()" ||
           line == "vxdbHostApplicationServices()";
}

/// Test fixture: loads and unloads the module, and takes its steps.
class ModuleTest : public support::Bench {
protected:
    std::size_t count(const std::string& call) {
        std::size_t found = 0;
        for (const std::string& name : m_calls)
            found += name == call ? 1 : 0;
        return found;
    }
    void loadAndTakeCalls() {
        ASSERT_TRUE(load());
        m_calls = takeCalls();
    }
    /// The host calls since the journal was taken, with their arguments, but for look-ups.
    std::vector<std::string> takeSteps() {
        std::vector<std::string> steps = support::callLines(takeJournal());
        std::erase_if(steps, isLookUp);
        return steps;
    }
    /// A window with a control that stands outside of the dashboard.
    void makeControlOutside() {
        constexpr CRect kPlace{0, 0, 200, 100};
        m_outside = std::make_unique<CQrUiToolPanel>();
        ASSERT_NE(m_outside->Create(WS_CHILD | WS_VISIBLE, kPlace, AfxGetMainWnd(), 1, 0), 0);
        const auto make = exported<VxDaGetCustomControlFn>("VxDaGetCustomControl");
        ASSERT_NE(make(L"LayerLockTransparencySliderControl", m_outside->m_hWnd), nullptr);
    }
    void TearDown() override {
        m_outside.reset();
        Bench::TearDown();
    }
    /// The arguments of each call of a name since the journal was taken.
    std::vector<workbench::Value::List> argumentsOf(const std::string& call) {
        std::vector<workbench::Value::List> found;
        for (const workbench::JournalRecord& record : takeJournal("call")) {
            if (record.field("name") == workbench::Value(call))
                found.push_back(record.field("args").asList());
        }
        return found;
    }
    std::vector<std::string> m_calls;
    std::unique_ptr<CQrUiToolPanel> m_outside;  // null until it is needed
};
