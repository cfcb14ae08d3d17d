#include "workbench/host/dashboard_state.h"

#include "tests/support/bench.h"
#include "workbench/toolkit/toolkit.h"

#include <string>
#include <vector>

namespace workbench {

namespace {

class DashboardStateTest : public support::Bench {};

TEST_F(DashboardStateTest, FollowsTheBar) {
    showDashboard();
    EXPECT_EQ(var(L"DASHBOARDSTATE"), Value(1));
    bench().toolkit().frame().close(*paletteSet());
    EXPECT_EQ(var(L"DASHBOARDSTATE"), Value(0));
    type(L"DASHBOARDOLD\n");
    EXPECT_EQ(var(L"DASHBOARDSTATE"), Value(1));
    unload();
    EXPECT_EQ(var(L"DASHBOARDSTATE"), Value(0));
}

TEST_F(DashboardStateTest, ABarOfAnotherToolIsNotTheDashboard) {
    CQrUiPaletteSet other(0);
    CFrameWnd& frame = bench().toolkit().frame().frame();
    other.Create(L"Other", 0, {0, 0, 100, 100}, &frame, 0);
    frame.ShowControlBar(&other, 1, 0);
    EXPECT_EQ(var(L"DASHBOARDSTATE"), Value(0));
}

TEST_F(DashboardStateTest, WhatACommandShowsIsToldAtItsEnd) {
    env("ENABLEDASHBOARD", "1");
    load();
    newDocument(L"A");
    takeJournal();
    type(L"DASHBOARDOLD\n");
    std::vector<std::string> steps;
    for (const JournalRecord& record : takeJournal()) {
        if (record.kind == "var" || record.field("event").isString())
            steps.push_back(record.field(record.kind == "var" ? "name" : "event").asString());
    }
    EXPECT_EQ(steps, (std::vector<std::string>{"started", "ended", "DASHBOARDSTATE"}));
}

}  // namespace

}  // namespace workbench
