#include "tests/support/bench.h"

#include "workbench/loader/module_loader.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

/// Whether names stand in a list in this order, others between them.
testing::AssertionResult standInOrder(const std::vector<std::string>& all,
                                      const std::vector<std::string>& wanted) {
    auto from = all.begin();
    for (const std::string& name : wanted) {
        from = std::find(from, all.end(), name);
        if (from == all.end())
            return testing::AssertionFailure() << name << " is missing there";
        ++from;
    }
    return testing::AssertionSuccess();
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
};

using Arguments = workbench::Value::List;

TEST_F(ModuleTest, LoadKeepsItsOrder) {
    env("ENABLEDASHBOARD", "1");
    loadAndTakeCalls();
    EXPECT_TRUE(standInOrder(
        m_calls,
        {"VxRxDynamicLinker::unlockApplication", "VxRxDynamicLinker::registerAppMDIAware",
         "vxrxServiceIsRegistered", "vxrxRegisterService", "LoadLibrary", "AfxInitExtensionModule",
         "VxEdCommandStack::addCommand", "VxEdCommandStack::addCommand",
         "CQrUiThemeManager::GetTheme", "CQrUiTheme::RegisterReactor", "CQrUiTheme::SetDataPtr",
         "VxApProfileManager::addReactor", "VxEditor::addReactor", "VxApDocManager::addReactor",
         "QrUiRegisterTool", "LoadLibrary"}));
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

TEST_F(ModuleTest, UnloadKeepsItsOrder) {
    showDashboard();
    takeCalls();
    ASSERT_TRUE(unload());
    EXPECT_TRUE(standInOrder(
        takeCalls(),
        {"DestroyIcon", "VxEdCommandStack::removeGroup", "FreeLibrary", "AfxTermExtensionModule",
         "VxApProfileManager::removeReactor", "VxEditor::removeReactor",
         "VxApDocManager::removeReactor", "CQrUiTheme::UnregisterReactor",
         "CQrUiThemeManager::ReleaseTheme", "VxRxDictionary::remove"}));
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

TEST_F(ModuleTest, UnloadWithThePanelsDownDeletesThePaletteSetAfterTheCommandGroup) {
    showDashboard();
    EXPECT_EQ(notify(kDashboardUnload), 1);
    const HWND bar = paletteSet()->m_hWnd;
    takeJournal();
    ASSERT_TRUE(unload());
    EXPECT_FALSE(bench().windows().find(bar) != nullptr);
    EXPECT_TRUE(
        standInOrder(takeCalls(), {"VxEdCommandStack::removeGroup", "VxApDocManager::removeReactor",
                               "DestroyIcon", "CQrUiTheme::UnregisterReactor"}));
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
    EXPECT_EQ(exported<VxDaGetCustomControlFn>("VxDaGetCustomControl")(L"x", nullptr), nullptr);
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
