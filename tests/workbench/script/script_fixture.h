#pragma once

#include "workbench/host/workbench.h"
#include "workbench/script/script_engine.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>

namespace workbench::script {

/// A workbench with the example menu, and scripts that are run against it.
class ScriptTest : public testing::Test {
protected:
    ScriptTest() : m_workbench(options()) {}

    Workbench& workbench() { return m_workbench; }

    /// Runs a script that has to pass; a complaint becomes the test's.
    void run(std::string_view text) {
        const ScriptResult result = runScriptText(m_workbench, text, "test.lua");
        EXPECT_TRUE(result.passed) << result.complaint;
    }

    /// The same after the dashboard has been opened on a document "A".
    void runOnDashboard(const std::string& text) {
        // On one line, so that the script's own lines keep their numbers.
        run(R"(wb.env("ENABLEDASHBOARD", "1") wb.load() wb.new("A") wb.type("DASHBOARDOLD\n") )" +
            text);
    }

    /// What a script that has to fail complains of, without its place.
    std::string complaintOf(std::string_view text) {
        const std::string complaint = placedComplaintOf(text);
        constexpr std::string_view kPlace = "test.lua:1: ";
        EXPECT_EQ(complaint.substr(0, kPlace.size()), kPlace);
        return complaint.substr(std::min(kPlace.size(), complaint.size()));
    }
    std::string placedComplaintOf(std::string_view text) {
        const ScriptResult result = runScriptText(m_workbench, text, "test.lua");
        EXPECT_FALSE(result.passed) << text;
        return result.complaint;
    }

private:
    static WorkbenchOptions options() {
        WorkbenchOptions options;
        options.libraryDir = WORKBENCH_BIN_DIR;
        options.panelFile = std::filesystem::path(PROJECT_SOURCE_ROOT) / "examples" / "panels.json";
        return options;
    }

    Workbench m_workbench;
};

}  // namespace workbench::script
