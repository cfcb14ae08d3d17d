#include "module/module.h"

#include "module/manager.h"
#include "tests/module/manager_fixture.h"
#include "tests/palette/palette_fixture.h"
#include "tests/support/bench.h"
#include "tests/support/call_lines.h"
#include "visualstyle/style_reactors.h"
#include "workbench/loader/module_loader.h"
#include "workbench/loader/service_entry.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <memory>
#include <string>
#include <vector>

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

/// Whether a call only looks an object of the host up.
bool isLookUp(const std::string& line) {
    return line.starts_with("vxrxSysRegistry(") || line.starts_with("VxRxDictionary::at(") ||
           line.starts_with("VxRxObject::isKindOf(") || line == "vxProfileManagerPtr()" ||
           line == "vxDocManagerPtr()" || line == "QrUiGetThemeManager()" ||
           line == "vxdbHostApplicationServices()";
}

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
    Lines takeSteps() {
        Lines steps = support::callLines(takeJournal());
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

using Arguments = workbench::Value::List;

TEST_F(ModuleTest, LoadTakesItsStepsInOrder) {
    env("ENABLEDASHBOARD", "1");
    takeJournal();
    ASSERT_TRUE(load());
    EXPECT_EQ(takeSteps(),
              (Lines{"VxRxDynamicLinker::unlockApplication(object)",
                     "VxRxDynamicLinker::registerAppMDIAware(object)",
                     "vxrxServiceIsRegistered(\"ZorqVxDashboard\")",
                     "vxrxRegisterService(\"ZorqVxDashboard\")",
                     "LoadLibrary(\"VxDashboardRes.dll\")",
                     "AfxGetResourceHandle()",
                     "AfxInitExtensionModule(\"VxDashboardRes.dll\")",
                     "AfxGetResourceHandle()",
                     "AfxSetResourceHandle(\"VxDashboardRes.dll\")",
                     "LoadString(201)",
                     "AfxSetResourceHandle(\"\")",
                     "VxEdCommandStack::addCommand(\"ZorqVxDashboard\", \"DASHBOARDOLD\", "
                     "\"DASHBOARDOLD\", 3, true, null, -1, false)",
                     "VxEdCommandStack::addCommand(\"ZorqVxDashboard\", \"VIEWBACK\", "
                     "\"VIEWBACK\", 1, true, null, -1, false)",
                     "CQrUiThemeManager::GetTheme(\"ToolPanel\")",
                     "CQrUiTheme::RegisterReactor(object)",
                     "CQrUiTheme::GetFont(3)",
                     "CFont::CreateFontIndirect(\"DejaVu Sans\", 11, 400)",
                     "CQrUiTheme::SetDataPtr(2, object)",
                     "CQrUiTheme::ResumeModifiedNotifications()",
                     "VxApProfileManager::addReactor(object)",
                     "VxEditor::addReactor(object)",
                     "VxApDocManager::addReactor(object)",
                     "QrUiRegisterTool(\"VxDashboard.qlx\", \"DASHBOARDOLD\")",
                     "VxDbHostApplicationServices::program()",
                     "LoadLibrary(\"ZORQbtn.xmx\")"}));
}

TEST_F(ModuleTest, LoadMakesNoWindow) {
    bench();
    const std::size_t before = bench().windows().topWindows().size();
    env("ENABLEDASHBOARD", "1");
    loadAndTakeCalls();
    EXPECT_EQ(paletteSet(), nullptr);
    EXPECT_EQ(bench().windows().topWindows().size(), before);
}

TEST_F(ModuleTest, ToolIsRegisteredAlsoWithoutCommands) {
    loadAndTakeCalls();
    EXPECT_EQ(count("QrUiRegisterTool"), 1U);
    EXPECT_EQ(count("VxEdCommandStack::addCommand"), 0U);
}

TEST_F(ModuleTest, ToolIsRegisteredUnderThePaletteSetsIdWithTheCommandThatShowsIt) {
    constexpr GUID kTool{
        0x12F4DCC5, 0x8FDB, 0x4937, {0x83, 0x87, 0xE6, 0x28, 0xD5, 0xC2, 0xAB, 0xBF}};
    ASSERT_TRUE(load());
    EXPECT_EQ(argumentsOf("QrUiRegisterTool"),
              (std::vector<Arguments>{{"VxDashboard.qlx", "DASHBOARDOLD"}}));
    EXPECT_NE(bench().toolkit().tools().find(kTool), nullptr);
}

TEST_F(ModuleTest, SecondLoadMessageRegistersAndAttachesNothingTwice) {
    env("ENABLEDASHBOARD", "1");
    ASSERT_TRUE(load());
    takeCalls();
    const auto entryPoint = exported<int (*)(int, void*)>("vxrxEntryPoint");
    EXPECT_EQ(entryPoint(1, nullptr), 0);
    m_calls = takeCalls();
    EXPECT_EQ(count("vxrxServiceIsRegistered"), 1U);
    EXPECT_EQ(count("vxrxRegisterService"), 0U);
    EXPECT_EQ(count("AfxInitExtensionModule"), 0U);
    newDocument(L"A");
    type(L"DASHBOARDOLD\n");
    EXPECT_FALSE(panelsOnScreen().empty());
    EXPECT_TRUE(unload());
    EXPECT_EQ(paletteSet(), nullptr);
    EXPECT_FALSE(vxrxServiceIsRegistered(L"ZorqVxDashboard"));
}

TEST_F(ModuleTest, ServiceThatIsThereIsNotRegisteredTwice) {
    bench();
    vxrxRegisterService(L"ZorqVxDashboard");
    takeCalls();
    loadAndTakeCalls();
    EXPECT_EQ(count("vxrxRegisterService"), 0U);
}

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

TEST_F(ModuleTest, LoadWithoutTheResourceLibraryEndsWithTheBox) {
    env("ENABLEDASHBOARD", "1");
    bench().faults().hide("VxDashboardRes.dll");
    takeJournal();
    EXPECT_TRUE(load());
    EXPECT_EQ(takeTexts("box").size(), 1U);
    EXPECT_EQ(
        takeSteps(),
        (Lines{"VxRxDynamicLinker::unlockApplication(object)",
               "VxRxDynamicLinker::registerAppMDIAware(object)",
               "vxrxServiceIsRegistered(\"ZorqVxDashboard\")",
               "vxrxRegisterService(\"ZorqVxDashboard\")", "LoadLibrary(\"VxDashboardRes.dll\")",
               "GetLastError()", "VxUt::GetSystemErrorMessage(2)",
               "AfxMessageBox(\"FATAL ERROR: Unable to load file 'VxDashboardRes.dll'. The "
               "specified file cannot be found.\nPress OK to abort.\", 16)"}));
}

TEST_F(ModuleTest, UnloadAfterAFailedLoadOnlyRemovesTheCommandGroupAndTheService) {
    bench().faults().hide("VxDashboardRes.dll");
    EXPECT_TRUE(load());
    EXPECT_EQ(takeTexts("box").size(), 1U);
    takeJournal();
    EXPECT_TRUE(unload());
    EXPECT_EQ(takeSteps(), (Lines{"VxEdCommandStack::removeGroup(\"ZorqVxDashboard\")",
                                  "VxRxDictionary::remove(\"ZorqVxDashboard\")"}));
}

TEST_F(ModuleTest, MissingResourceLibraryGivesTheOneBox) {
    bench().faults().hide("VxDashboardRes.dll");
    EXPECT_TRUE(load());
    const std::vector<std::string> boxes = takeTexts("box");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].find("FATAL ERROR: Unable to load file 'VxDashboardRes.dll'. "), 0U);
    EXPECT_NE(boxes[0].find(".\nPress OK to abort."), std::string::npos);
    EXPECT_TRUE(vxrxServiceIsRegistered(L"ZorqVxDashboard"));
}

TEST_F(ModuleTest, BoxOfAMissingResourceLibraryHasTheStopIconAndOkAlone) {
    bench().faults().hide("VxDashboardRes.dll");
    EXPECT_TRUE(load());
    EXPECT_EQ(takeTexts("box").size(), 1U);
    const std::vector<Arguments> boxes = argumentsOf("AfxMessageBox");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].at(1), workbench::Value(16));
}

TEST_F(ModuleTest, AfterAFailedLoadNothingElseIsThereAndUnloadStillRuns) {
    env("ENABLEDASHBOARD", "1");
    bench().faults().hide("VxDashboardRes.dll");
    EXPECT_TRUE(load());
    EXPECT_EQ(takeTexts("box").size(), 1U);
    EXPECT_EQ(notify(kDashboardReleaseControls), 0);
    EXPECT_EQ(notify(3), 0);
    EXPECT_EQ(exported<VxDaInvalidateDashboardFn>("VxDaInvalidateDashboard")(), 0);
    EXPECT_EQ(exported<VxDaGetToolPanelItemsFn>("VxDaGetToolPanelItems")(L"ID_Light"), nullptr);
    VxDaPanelList panels{{L"x", L"y"}};
    EXPECT_EQ(exported<VxDaGetVisiblePanelsFn>("VxDaGetVisiblePanels")(&panels), 0);
    EXPECT_TRUE(panels.empty());
    EXPECT_EQ(exported<VxDaSetVisiblePanelsFn>("VxDaSetVisiblePanels")(&panels), 0);
    const auto make = exported<VxDaGetCustomControlFn>("VxDaGetCustomControl");
    EXPECT_EQ(make(L"LayerLockTransparencySliderControl", AfxGetMainWnd()->m_hWnd), nullptr);
    EXPECT_EQ(make(nullptr, nullptr), nullptr);
    DashboardListener listener;
    const auto addOrRemove = exported<VxDaAddOrRemoveReactorFn>("VxDaAddOrRemoveReactor");
    EXPECT_EQ(addOrRemove(&listener, 1), 0);
    EXPECT_EQ(addOrRemove(&listener, 0), 0);
    newDocument(L"A");
    type(L"DASHBOARDOLD\n");
    EXPECT_EQ(paletteSet(), nullptr);
    EXPECT_TRUE(unload());
    EXPECT_FALSE(vxrxServiceIsRegistered(L"ZorqVxDashboard"));
}

TEST_F(ModuleTest, MissingIconLibraryIsNoMatter) {
    bench().faults().hide("ZORQbtn.xmx");
    showDashboard();
    EXPECT_TRUE(takeTexts("box").empty());
    EXPECT_NE(item(L"ID_3DWalk"), nullptr);
}

TEST_F(ModuleTest, IconLibraryWithoutTheHostsServicesHasNoProgramInItsName) {
    fail("vxdbHostApplicationServices");
    ASSERT_TRUE(load());
    const std::vector<Arguments> libraries = argumentsOf("LoadLibrary");
    ASSERT_FALSE(libraries.empty());
    EXPECT_EQ(libraries.back(), Arguments{"btn.xmx"});
}

TEST_F(ModuleTest, IconLibraryStaysLoadedAfterUnload) {
    ASSERT_TRUE(load());
    ASSERT_TRUE(unload());
    EXPECT_NE(bench().modules().libraries().find(L"ZORQbtn.xmx"), nullptr);
}

TEST_F(ModuleTest, MissingThemeLeavesAPaletteSetWithoutAPalette) {
    fail("CQrUiThemeManager::GetTheme");
    showDashboard();
    EXPECT_TRUE(panelsOnScreen().empty());
    EXPECT_EQ(notify(kDashboardUnload), 1);
    EXPECT_EQ(notify(kDashboardReload), 1);
    EXPECT_TRUE(unload());
}

TEST_F(ModuleTest, UnloadWithoutAThemeManagerIsNoMatter) {
    ASSERT_TRUE(load());
    fail("QrUiGetThemeManager");
    EXPECT_TRUE(unload());
}

TEST_F(ModuleTest, ChangeOfThemeBuildsTheFontAnew) {
    ASSERT_TRUE(load());
    const std::size_t before = bench().windows().gdi().fontCount();
    takeCalls();
    bench().toolkit().themes().find(L"ToolPanel")->changeElement(3);
    m_calls = takeCalls();
    EXPECT_EQ(count("CQrUiTheme::GetFont"), 1U);
    EXPECT_EQ(count("CQrUiTheme::SetDataPtr"), 1U);
    EXPECT_EQ(bench().windows().gdi().fontCount(), before);
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

// The module, linked into the test

class LinkedModuleTest : public PaletteTest {
protected:
    bool isServiceThere() { return vxrxServiceIsRegistered(L"ZorqVxDashboard"); }
    /// Whether the watcher of visual styles is there: it looks at the space when asked to update.
    bool areStylesWatched() {
        forget();
        updateVisualStyleState();
        return callCount("vxedGetVar") > 0;
    }
};

TEST_F(LinkedModuleTest, UnloadTakesTheServiceOutItselfAndDeletesIt) {
    const int before = workbench::ServiceEntry::liveCount();
    load();
    ASSERT_TRUE(isServiceThere());
    EXPECT_EQ(workbench::ServiceEntry::liveCount(), before + 1);
    unloadModule();
    EXPECT_FALSE(isServiceThere());
    EXPECT_EQ(workbench::ServiceEntry::liveCount(), before);
}

TEST_F(LinkedModuleTest, UnloadWithoutTheDictionaryOfServicesLeavesTheService) {
    load();
    fail("VxRxDictionary::at", 100);
    unloadModule();
    EXPECT_TRUE(isServiceThere());
    EXPECT_EQ(callCount("VxRxDictionary::remove"), 0);
    bench().faults().unfail("VxRxDictionary::at");
}

TEST_F(LinkedModuleTest, ManagersAndThemeLiveFromTheLoadToTheUnload) {
    EXPECT_EQ(dashboardManager(), nullptr);
    EXPECT_EQ(controlManager(), nullptr);
    load();
    EXPECT_NE(dashboardManager(), nullptr);
    EXPECT_NE(controlManager(), nullptr);
    unloadModule();
    EXPECT_EQ(dashboardManager(), nullptr);
    EXPECT_EQ(controlManager(), nullptr);
}

TEST_F(LinkedModuleTest, DashboardCountsAsVisibleOnlyWhileTheBarIsOnScreen) {
    EXPECT_FALSE(isDashboardVisible());
    load();
    EXPECT_FALSE(isDashboardVisible());
    showLoaded();
    EXPECT_TRUE(isDashboardVisible());
    dashboard().show(0);
    EXPECT_FALSE(isDashboardVisible());
}

TEST_F(LinkedModuleTest, UnloadEndsTheWatchersOfVisualStylesHoweverOftenTheyWereCounted) {
    show();
    dashboardManager()->notify(kDashboardUnload);
    dashboardManager()->notify(kDashboardReload);
    ASSERT_TRUE(areStylesWatched());
    unloadModule();
    EXPECT_FALSE(areStylesWatched());
}

}  // namespace
