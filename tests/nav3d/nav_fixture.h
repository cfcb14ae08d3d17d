#pragma once

#include "tests/support/control_bench.h"
#include "workbench/base/text.h"
#include "workbench/drawing/records/current.h"
#include "workbench/editor/editor.h"
#include "workbench/navigation/navigation_tool.h"

#include <string>
#include <vector>

/// Test fixture: a navigation control and the drawing's views.
class NavControlTest : public support::ControlBench {
protected:
    /// The same, with nobody told of a view that changes.
    void setDbQuietly(const std::string& path, const workbench::Value& value) {
        workbench::ViewHistory& history = bench().editor().documents().current()->viewHistory();
        history.setQuiet(true);
        setDb(path, value);
        history.setQuiet(false);
    }
    /// Leaves the drawing without a viewport: `CVPORT` reads as -1.
    void loseViewport() {
        workbench::drawing::Database& database = bench().editor().documents().current()->data();
        workbench::drawing::Writing<workbench::drawing::Current> writing(
            database, database.first(workbench::drawing::RecordKind::Current));
        writing->modelViewport = -1;
    }
    /// Lets the control alone hear of a variable.
    void tellOf(const wchar_t* variable) { send(1727, 1, reinterpret_cast<LPARAM>(variable)); }
    double number(const std::string& path) { return db(path).asReal(); }
    /// A named view of the present view.
    void addView(const std::string& name) { setDb("views." + name, workbench::Value::Table{}); }
    void startTool() {
        ASSERT_TRUE(bench().navigation().start(workbench::NavigationTool::kFreeOrbit));
        takeJournal();
    }
    void stopTool() { bench().navigation().stop(); }
    /// The last balloon's text since the last look; empty for none.
    std::string balloon() {
        const std::vector<std::string> all = takeTexts("balloon");
        return all.empty() ? std::string() : all.back();
    }
    std::string string(UINT id) { return workbench::toUtf8(stringOf(id)); }
};
