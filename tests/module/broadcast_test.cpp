#include "tests/module/manager_fixture.h"
#include "tests/support/window_tap.h"
#include "workbench/editor/editor.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace {

using support::TapMessages;
using support::WindowTap;

class BroadcastTest : public ManagerTest {
protected:
    struct Parameters {
        workbench::Value wParam;
        workbench::Value lParam;
        friend bool operator==(const Parameters&, const Parameters&) = default;
    };
    /// What came with the messages of a number that a control got since the journal was taken.
    std::vector<Parameters> parametersOf(std::int64_t number) {
        std::vector<Parameters> found;
        for (const workbench::JournalRecord& record : takeJournal("message")) {
            if (record.field("control") == workbench::Value(kControl) &&
                record.field("number") == workbench::Value(number))
                found.push_back({record.field("wparam"), record.field("lparam")});
        }
        return found;
    }
    VxApDocument* document(const wchar_t* name) { return bench().editor().documents().find(name); }
};

// Every event

struct EventCase {
    const char* what;
    std::int64_t number;
    int wParam;
    workbench::Value lParam;
};

class EventTest : public BroadcastTest, public testing::WithParamInterface<EventCase> {
protected:
    void raise(const std::string& what) {
        workbench::EditorReactors& editor = bench().editor().reactors();
        if (what == "command starts")
            editor.commandWillStart(L"LINE");
        if (what == "command ended")
            editor.commandEnded(L"LINE");
        if (what == "command cancelled")
            editor.commandCancelled(L"LINE");
        if (what == "command failed")
            editor.commandFailed(L"LINE");
        if (what == "variable changed")
            editor.sysVarChanged(L"LTSCALE", true);
        if (what == "variable not changed")
            editor.sysVarChanged(L"LTSCALE", false);
        if (what == "variable will change")
            editor.sysVarWillChange(L"LTSCALE");
        if (what == "view changed")
            editor.viewChanged();
        if (what.starts_with("document to be activated"))
            newDocument(L"B");
        if (what.starts_with("document became current"))
            newDocument(L"B");
        if (what.ends_with("destroyed"))
            closeDocument(L"A");
        settle();
    }
};

TEST_P(EventTest, ReachesEveryControlOnceUnderItsNumberWithItsParameters) {
    showDashboard();
    takeJournal();
    raise(GetParam().what);
    EXPECT_EQ(parametersOf(GetParam().number),
              (std::vector<Parameters>{{GetParam().wParam, GetParam().lParam}}));
}

INSTANTIATE_TEST_SUITE_P(Table, EventTest,
                         testing::Values(EventCase{"document to be activated", 1724, 0, "object"},
                                         EventCase{"last document destroyed", 1725, 0, "A"},
                                         EventCase{"document became current", 1726, 0, "object"},
                                         EventCase{"variable changed", 1727, 1, "LTSCALE"},
                                         EventCase{"variable not changed", 1727, 0, "LTSCALE"},
                                         EventCase{"variable will change", 1728, 0, "LTSCALE"},
                                         EventCase{"command starts", 1729, 0, "LINE"},
                                         EventCase{"command failed", 1729, 0, "LINE"},
                                         EventCase{"command ended", 1730, 0, "LINE"},
                                         EventCase{"command cancelled", 1731, 0, "LINE"},
                                         EventCase{"view changed", 1736, 0, 0},
                                         EventCase{"document to be destroyed", 1737, 0, "object"}));

// Single ones

TEST_F(BroadcastTest, DocumentEventsCarryTheDocumentItself) {
    showDashboard();
    const WindowTap tap(bench().windows(), control(kControl));
    newDocument(L"B");
    const auto carried = reinterpret_cast<LPARAM>(document(L"B"));
    EXPECT_EQ(tap.of(1724), (TapMessages{{1724, 0, carried}}));
    EXPECT_EQ(tap.of(1726), (TapMessages{{1726, 0, carried}}));
    closeDocument(L"B");
    EXPECT_EQ(tap.of(1737), (TapMessages{{1737, 0, carried}}));
}

TEST_F(BroadcastTest, FailedCommandIsToldLikeAStartAndNotLikeAnEnd) {
    showDashboard();
    begin(L"LINE");
    takeJournal();
    finish("failed");
    const auto messages = takeMessagesOf(kControl);
    EXPECT_EQ(std::count(messages.begin(), messages.end(), 1729), 1);
    EXPECT_EQ(std::count(messages.begin(), messages.end(), 1730), 0);
    EXPECT_EQ(std::count(messages.begin(), messages.end(), 1731), 0);
}

TEST_F(BroadcastTest, VariableChangeBeforeTheFirstShowReachesTheControlManagerAlone) {
    env("ENABLEDASHBOARD", "1");
    ASSERT_TRUE(load());
    newDocument(L"A");
    takeJournal();
    set(L"LTSCALE", 2.0);
    const std::vector<std::string> made = takeCalls();
    EXPECT_NE(std::find(made.begin(), made.end(), "vxedGetVar"), made.end())
        << "the first change of any variable reads the material mode";
    EXPECT_TRUE(takeMessagesOf(kControl).empty());
}

TEST_F(BroadcastTest, EventsAfterThePanelsWentAreHarmless) {
    showDashboard();
    EXPECT_EQ(notify(kDashboardUnload), 1);
    takeJournal();
    set(L"LTSCALE", 2.0);
    newDocument(L"B");
    closeDocument(L"B");
    bench().editor().viewChanged();
    EXPECT_TRUE(takeMessagesOf(kControl).empty());
}

}  // namespace
