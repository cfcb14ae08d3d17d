#include "tests/module/manager_fixture.h"
#include "tests/module/module_fixture.h"

#include <hostapi/vxdb18/rx_object.h>

namespace {

using Lines = std::vector<std::string>;
using Arguments = workbench::Value::List;

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

TEST_F(ModuleTest, MissingThemeLeavesAPaletteSetWithoutAPalette) {
    fail("CQrUiThemeManager::GetTheme");
    showDashboard();
    EXPECT_TRUE(panelsOnScreen().empty());
    EXPECT_EQ(notify(kDashboardUnload), 1);
    EXPECT_EQ(notify(kDashboardReload), 1);
    EXPECT_TRUE(unload());
}

}  // namespace
