#pragma once

#include "tests/support/bench.h"
#include "workbench/editor/editor.h"

#include <string>
#include <vector>

/// Test fixture: the dashboard with its lighting tools.
class LightingToolsTest : public support::Bench {
protected:
    void SetUp() override {
        showDashboard();
        takeSent();
        takeJournal();
    }
    void clickTool(const wchar_t* id) { click(item(id)); }
    void goToPaperSpace() {
        set(L"TILEMODE", 0);
        ASSERT_EQ(var(L"CVPORT"), workbench::Value(1));
    }
    int number(const wchar_t* variable) { return static_cast<int>(var(variable).asInteger()); }
};
