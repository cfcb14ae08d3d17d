#include "tests/module/module_fixture.h"
#include "workbench/loader/module_loader.h"

#include <hostapi/vxdb18/rx_object.h>

namespace {

using Lines = std::vector<std::string>;

/// One panel with a button and a control.
constexpr const char* kSmallMenu = R"({
  "menuGroups": [{"name": "MAIN"}],
  "panels": [{"menuGroup": "MAIN", "id": "P", "title": "Panel", "toolPanels": ["T"]}],
  "workspaces": [{"name": "Work", "panels": [{"panel": "P", "menuGroup": "MAIN"}]}],
  "currentWorkspace": "Work",
  "toolPanels": [{"menuGroup": "MAIN", "id": "T", "items": [
    {"type": "button", "id": "B"},
    {"type": "control", "id": "C", "control": "LayerLockTransparencySliderControl"}]}]
})";

TEST_F(ModuleTest, UnloadWithoutADashboardTakesItsStepsInOrder) {
    ASSERT_TRUE(load());
    takeJournal();
    ASSERT_TRUE(unload());
    EXPECT_EQ(
        takeSteps(),
        (Lines{"VxEdCommandStack::removeGroup(\"ZorqVxDashboard\")",
               "FreeLibrary(\"VxDashboardRes.dll\")", "AfxTermExtensionModule(\"\")",
               "VxApProfileManager::removeReactor(object)", "VxEditor::removeReactor(object)",
               "VxApDocManager::removeReactor(object)", "CFont::~CFont(\"DejaVu Sans\")",
               "CQrUiTheme::UnregisterReactor(object)", "CQrUiThemeManager::ReleaseTheme(object)",
               "VxRxDictionary::remove(\"ZorqVxDashboard\")"}));
}

TEST_F(ModuleTest, UnloadEndsPanelsAndBarFirstAndTheControlsOutsideBeforeTheManager) {
    useMenu(kSmallMenu);
    showDashboard();
    makeControlOutside();
    takeJournal();
    ASSERT_TRUE(unload());
    Lines steps = takeSteps();
    // The end of an object asks once more for the end of its window, which has gone by then.
    std::erase(steps, "CWnd::DestroyWindow(\"\")");
    EXPECT_EQ(
        steps,
        (Lines{"CWnd::DestroyWindow(\"CQrUiPanelSet\")",
               "CQrUiPanelSet::Create(1342177280, object, 1)", "DestroyIcon()",
               "CWnd::DestroyWindow(\"CQrUiPaletteSet\")",
               "VxEdCommandStack::removeGroup(\"ZorqVxDashboard\")",
               "FreeLibrary(\"VxDashboardRes.dll\")", "AfxTermExtensionModule(\"\")",
               "CWnd::DestroyWindow(\"CQrUiToolPanel\")",
               "VxApProfileManager::removeReactor(object)", "VxEditor::removeReactor(object)",
               "VxApDocManager::removeReactor(object)", "CFont::~CFont(\"DejaVu Sans\")",
               "CQrUiTheme::UnregisterReactor(object)", "CQrUiThemeManager::ReleaseTheme(object)",
               "VxRxDictionary::remove(\"ZorqVxDashboard\")", "CFont::~CFont(\"DejaVu Sans\")"}));
}

TEST_F(ModuleTest, FontLivesUntilTheManagersHaveEndedAndIsGoneBeforeTheThemeIsLeft) {
    ASSERT_TRUE(load());
    Lines fonts;
    const auto watch = bench().journal().addListener([&](const workbench::JournalRecord& record) {
        const std::string name = record.kind == "call" ? record.field("name").asString() : "";
        if (name == "VxApDocManager::removeReactor" || name == "CQrUiTheme::UnregisterReactor")
            fonts.push_back(name + ' ' + std::to_string(bench().windows().gdi().fontCount()));
    });
    ASSERT_TRUE(unload());
    EXPECT_EQ(fonts, (Lines{"VxApDocManager::removeReactor 1", "CQrUiTheme::UnregisterReactor 0"}));
}

TEST_F(ModuleTest, UnloadRemovesTheCommandGroupAlsoWithoutCommands) {
    ASSERT_TRUE(load());
    takeCalls();
    ASSERT_TRUE(unload());
    m_calls = takeCalls();
    EXPECT_EQ(count("VxEdCommandStack::removeGroup"), 1U);
}

TEST_F(ModuleTest, UnloadTakesTheServiceAway) {
    ASSERT_TRUE(load());
    EXPECT_TRUE(vxrxServiceIsRegistered(L"ZorqVxDashboard"));
    ASSERT_TRUE(unload());
    EXPECT_FALSE(vxrxServiceIsRegistered(L"ZorqVxDashboard"));
}

TEST_F(ModuleTest, UnloadWithThePanelsDownDeletesThePaletteSetWithTheManager) {
    useMenu(kSmallMenu);
    showDashboard();
    EXPECT_EQ(notify(kDashboardUnload), 1);
    const HWND bar = paletteSet()->m_hWnd;
    takeJournal();
    ASSERT_TRUE(unload());
    EXPECT_EQ(bench().windows().find(bar), nullptr);
    Lines steps = takeSteps();
    std::erase(steps, "CWnd::DestroyWindow(\"\")");
    EXPECT_EQ(
        steps,
        (Lines{"VxEdCommandStack::removeGroup(\"ZorqVxDashboard\")",
               "FreeLibrary(\"VxDashboardRes.dll\")", "AfxTermExtensionModule(\"\")",
               "VxApProfileManager::removeReactor(object)", "VxEditor::removeReactor(object)",
               "VxApDocManager::removeReactor(object)", "DestroyIcon()",
               "CWnd::DestroyWindow(\"CQrUiPaletteSet\")", "CFont::~CFont(\"DejaVu Sans\")",
               "CQrUiTheme::UnregisterReactor(object)", "CQrUiThemeManager::ReleaseTheme(object)",
               "VxRxDictionary::remove(\"ZorqVxDashboard\")"}));
}

TEST_F(ModuleTest, IconLibraryStaysLoadedAfterUnload) {
    ASSERT_TRUE(load());
    ASSERT_TRUE(unload());
    EXPECT_NE(bench().modules().libraries().find(L"ZORQbtn.xmx"), nullptr);
}

TEST_F(ModuleTest, UnloadWithoutAThemeManagerIsNoMatter) {
    ASSERT_TRUE(load());
    fail("QrUiGetThemeManager");
    EXPECT_TRUE(unload());
}

TEST_F(ModuleTest, SecondLoadDoesWhatTheFirstDidCallForCall) {
    useMenu(kSmallMenu);
    env("ENABLEDASHBOARD", "1");
    newDocument(L"A");
    const auto loadAndShow = [this] {
        takeJournal();
        EXPECT_TRUE(load());
        type(L"DASHBOARDOLD\n");
        set(L"LTSCALE", 2.0);
        set(L"LTSCALE", 1.0);
        return support::callLines(takeJournal());
    };
    const Lines first = loadAndShow();
    // Whatever the first load had in mind is to be forgotten.
    makeControlOutside();
    EXPECT_EQ(notify(kDashboardReleaseControls), 1);
    EXPECT_EQ(notify(kDashboardUnload), 1);
    EXPECT_EQ(notify(kDashboardReload), 1);
    exported<SetForce3DNavUpdateFn>("setForce3DNavUpdate")(true);
    ASSERT_TRUE(unload());
    EXPECT_EQ(loadAndShow(), first);
}

TEST_F(ModuleTest, SecondLoadStartsFresh) {
    showDashboard();
    ASSERT_TRUE(unload());
    EXPECT_EQ(paletteSet(), nullptr);
    ASSERT_TRUE(load());
    EXPECT_EQ(paletteSet(), nullptr);
    EXPECT_EQ(notify(kDashboardReload), 0) << "no palette set was made in this load";
    type(L"DASHBOARDOLD\n");
    EXPECT_NE(paletteSet(), nullptr);
}

TEST_F(ModuleTest, ManyRoundsOfLoadShowAndUnloadLeaveNothingBehind) {
    env("ENABLEDASHBOARD", "1");
    newDocument(L"A");
    // The example module keeps its own control as long as it is loaded itself.
    bench().faults().hide("VxExampleTools.qlx");
    for (int round = 0; round < 100; ++round) {
        ASSERT_TRUE(load());
        type(L"DASHBOARDOLD\n");
        ASSERT_NE(paletteSet(), nullptr);
        ASSERT_TRUE(unload());
        ASSERT_EQ(paletteSet(), nullptr);
        ASSERT_EQ(bench().toolkit().liveItems(), 0);
        takeJournal();
    }
}

}  // namespace
