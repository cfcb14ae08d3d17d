#include "workbench/desktop/app/host_actions.h"

#include "tests/workbench/host/test_options.h"
#include "workbench/base/input_error.h"
#include "workbench/desktop/app/collapsed_panels.h"
#include "workbench/profiles/profile_store.h"
#include "workbench/startup/open_dashboard.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <fstream>
#include <sstream>

namespace workbench::desktop {
namespace {

/// A workbench on a menu file of its own.
class HostActionsTest : public testing::Test {
protected:
    HostActionsTest() {
        std::ifstream example(PROJECT_SOURCE_ROOT "/examples/panels.json");
        std::stringstream text;
        text << example.rdbuf();
        m_example = text.str();
        write(m_example);
        m_workbench = std::make_unique<Workbench>(testOptions(m_file));
        openDashboard(*m_workbench, PROJECT_SOURCE_ROOT "/examples/house.json");
    }

    void write(const std::string& text) { std::ofstream(m_file) << text; }
    bool isOnScreen(const wchar_t* panel) {
        const auto found = findPanels(m_workbench->windows(), panel);
        return !found.empty() && m_workbench->windows().isOnScreen(found.front()->m_hWnd);
    }

    QTemporaryDir m_folder;
    std::filesystem::path m_file = m_folder.filePath(QStringLiteral("panels.json")).toStdString();
    std::string m_example;
    std::unique_ptr<Workbench> m_workbench;
};

TEST_F(HostActionsTest, AMenuFileThatChangedIsReadAnew) {
    ASSERT_TRUE(isOnScreen(L"Layers"));
    std::string changed = m_example;
    const std::string title = "\"title\": \"Layers\"";
    changed.replace(changed.find(title), title.size(), "\"title\": \"Sheets\"");
    write(changed);
    collapsePanels(m_workbench->toolkit(), {L"Light"});
    reloadMenu(*m_workbench);
    letHostRun(*m_workbench);
    ASSERT_TRUE(isOnScreen(L"Layers"));
    EXPECT_EQ(findPanels(m_workbench->windows(), L"Layers").at(0)->GetWindowText(), L"Sheets");
    EXPECT_EQ(collapsedPanels(m_workbench->toolkit()), std::vector<std::wstring>{L"Light"});
}

TEST_F(HostActionsTest, WithAnErrorInItTheOldPanelsStay) {
    write("{ \"panels\": 3 }");
    EXPECT_THROW(reloadMenu(*m_workbench), InputError);
    letHostRun(*m_workbench);
    EXPECT_TRUE(isOnScreen(L"Layers"));
    EXPECT_EQ(findPanels(m_workbench->windows(), L"Layers").at(0)->GetWindowText(), L"Layers");
}

TEST_F(HostActionsTest, WorkspacesAreSwitchedWithTheirPanels) {
    EXPECT_EQ(workspaceNames(*m_workbench), (std::vector<std::string>{"3D Modeling", "Drafting"}));
    switchWorkspace(*m_workbench, "Drafting");
    EXPECT_TRUE(isOnScreen(L"Draw"));
    EXPECT_FALSE(isOnScreen(L"Light"));
    EXPECT_THROW(switchWorkspace(*m_workbench, "Nowhere"), InputError);
    EXPECT_TRUE(isOnScreen(L"Draw"));
}

TEST_F(HostActionsTest, ProfilesAreListedWithTheCurrentOne) {
    m_workbench->profiles().save();
    m_workbench->profiles().switchTo("Night");
    EXPECT_EQ(profileNames(*m_workbench), (std::vector<std::string>{"Default", "Night"}));
}

TEST_F(HostActionsTest, TheLayoutIsResetFromWherever) {
    MainFrame& frame = m_workbench->toolkit().frame();
    CQrUiPaletteSet& set = *frame.bars().front();
    frame.floatAt(set, {100, 100, 340, 500});
    frame.show(set, false, false);
    resetLayout(*m_workbench);
    letHostRun(*m_workbench);
    EXPECT_FALSE(set.IsFloating());
    EXPECT_TRUE(m_workbench->windows().isOnScreen(set.m_hWnd));
}

TEST_F(HostActionsTest, TheDashboardIsShownAndHidden) {
    const HWND bar = m_workbench->toolkit().frame().bars().front()->m_hWnd;
    toggleDashboard(*m_workbench);
    EXPECT_FALSE(m_workbench->windows().isOnScreen(bar));
    toggleDashboard(*m_workbench);
    letHostRun(*m_workbench);
    EXPECT_TRUE(m_workbench->windows().isOnScreen(bar));
}

}  // namespace
}  // namespace workbench::desktop
