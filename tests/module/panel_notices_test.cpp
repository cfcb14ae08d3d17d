#include "tests/module/manager_fixture.h"
#include "workbench/toolkit/lookup.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr std::int64_t kThemeChanged = 1565;

/// What goes on around the building and the end of the panels.
class PanelNoticesTest : public ManagerTest {
protected:
    /// Has what the listener hears stand in the journal, as kind "heard".
    void noteInJournal() {
        m_listener.act = [this](std::string_view event) {
            bench().journal().add("heard", {{"event", std::string(event)}});
        };
    }
    /// Gives the panel set's window a name, so that its messages are noted.
    void namePanelSet() {
        for (const HWND window : bench().windows().descendants(paletteSet()->m_hWnd)) {
            if (dynamic_cast<CQrUiPanelSet*>(CWnd::FromHandle(window)) != nullptr)
                bench().windows().setName(window, "PanelSet");
        }
    }
    /// The panel set and panels that got the theme since the journal was taken, in order.
    std::vector<std::string> themed() {
        std::vector<std::string> names;
        for (const workbench::JournalRecord& record : takeJournal("message")) {
            const std::string& name = record.field("control").asString();
            CWnd* window = CWnd::FromHandle(control(name));
            const bool holdsPanels = dynamic_cast<CQrUiPanelSet*>(window) != nullptr;
            const bool isPanel = dynamic_cast<CQrUiPanel*>(window) != nullptr;
            if ((holdsPanels || isPanel) &&
                record.field("number") == workbench::Value(kThemeChanged))
                names.push_back(name);
        }
        return names;
    }
    /// Has each notice of the panels' end stand in `m_ends`, with what was there of them.
    void noteEnds() {
        m_listener.act = [this](std::string_view event) {
            if (event == "willUnload" || event == "unloaded")
                m_ends.push_back(
                    std::string(event) + " with " +
                    (workbench::allPanels(bench().windows()).empty() ? "none" : "panels"));
        };
    }

    std::vector<std::string> m_ends;
};

// Building

TEST_F(PanelNoticesTest, ThemeValueIsResetOnceBeforeThePaletteSetIsMade) {
    loadWithListener();
    takeJournal();
    show();
    ASSERT_EQ(notify(kDashboardUnload), 1);
    ASSERT_EQ(notify(kDashboardReload), 1);
    std::vector<std::string> steps;
    for (const workbench::JournalRecord& record : takeJournal("call")) {
        const std::string& name = record.field("name").asString();
        if (name == "CQrUiPaletteSet::Create")
            steps.push_back("create");
        if (name == "CQrUiTheme::SetData") {
            EXPECT_EQ(record.field("args"), (workbench::Value::List{1, 0}));
            steps.push_back("reset");
        }
    }
    EXPECT_EQ(steps, (std::vector<std::string>{"reset", "create"}));
}

TEST_F(PanelNoticesTest, FirstShowSendsEachPanelTheThemeAtItsEndAndThroughThePanelSet) {
    loadWithListener();
    m_listener.act = [this](std::string_view event) {
        if (event == "willLoad")
            namePanelSet();
    };
    takeJournal();
    show();
    const std::vector<std::string> names = themed();
    const auto through = std::find(names.begin(), names.end(), "PanelSet");
    ASSERT_NE(through, names.end());
    const std::vector<std::string> made(names.begin(), through);
    EXPECT_EQ(made.size(), workbench::allPanels(bench().windows()).size());
    EXPECT_EQ(std::vector<std::string>(through + 1, names.end()), made);
}

TEST_F(PanelNoticesTest, StateOfTheStylesIsReadAfterTheListenersHeardOfThePanels) {
    loadWithListener();
    noteInJournal();
    takeJournal();
    show();
    std::vector<std::string> steps;
    for (const workbench::JournalRecord& record : takeJournal()) {
        if (record.kind == "heard")
            steps.push_back(record.field("event").asString());
        else if (record.kind == "call" && record.field("name") == workbench::Value("vxedGetVar"))
            steps.push_back("read " + record.field("args").asList().front().asString());
    }
    const auto loaded = std::find(steps.begin(), steps.end(), "loaded");
    ASSERT_NE(loaded, steps.end());
    EXPECT_EQ(std::vector<std::string>(loaded + 1, std::find(loaded, steps.end(), "on")),
              std::vector<std::string>{"read TILEMODE"});
}

// Ending

TEST_F(PanelNoticesTest, UnloadOfThePanelsIsToldBeforeAndAfterAndNothingElse) {
    showWithListener();
    noteEnds();
    EXPECT_EQ(notify(kDashboardUnload), 1);
    EXPECT_EQ(m_listener.take(), (Heard{"willUnload", "unloaded"}));
    EXPECT_EQ(m_ends, (std::vector<std::string>{"willUnload with panels", "unloaded with none"}));
}

TEST_F(PanelNoticesTest, UnloadOfTheModuleTellsOfPanelsThatAreUp) {
    showWithListener();
    noteEnds();
    ASSERT_TRUE(unload());
    EXPECT_EQ(m_ends, (std::vector<std::string>{"willUnload with panels", "unloaded with none"}));
}

TEST_F(PanelNoticesTest, UnloadOfTheModuleTellsNothingOfPanelsThatAreDown) {
    showWithListener();
    ASSERT_EQ(notify(kDashboardUnload), 1);
    noteEnds();
    ASSERT_TRUE(unload());
    EXPECT_TRUE(m_ends.empty());
}

}  // namespace
