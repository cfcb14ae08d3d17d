#include "module/module.h"

#include "tests/module/module_fixture.h"

#include <hostapi/vxdb18/rx_object.h>

namespace {

using Lines = std::vector<std::string>;
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

}  // namespace
