#include "workbench/menu/menu_host.h"

#include "workbench/base/input_error.h"
#include "workbench/core/workbench.h"
#include "workbench/loader/module_loader.h"

#include "tests/workbench/loader/test_options.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

namespace workbench {

class MenuHostTest : public testing::Test {
protected:
    static constexpr const char* kExample = PROJECT_SOURCE_ROOT "/examples/panels.json";

    explicit MenuHostTest(const char* panelFile = kExample) : bench(testOptions(panelFile)) {}

    MenuHost& menu() { return bench.menu(); }
    LibraryTable& libraries() { return bench.modules().libraries(); }
    const VxPanelData* panel(const wchar_t* id) {
        for (const VxPanelData* each : *vxedGetPanelSetData()) {
            if (each->id == id)
                return each;
        }
        return nullptr;
    }

    Workbench bench;
};

class NoMenuTest : public MenuHostTest {
protected:
    NoMenuTest() : MenuHostTest("") {}
};

TEST_F(NoMenuTest, AHostWithoutMenuAnswersNothing) {
    std::vector<VxWsPanelData> panels{{L"before", L"before"}};
    EXPECT_EQ(vxedGetPanelSetData(), nullptr);
    EXPECT_EQ(vxedGetToolPanelData(L"ZORQ", L"LayerTools"), nullptr);
    EXPECT_FALSE(vxedGetWorkspacePanelData(panels));
    EXPECT_EQ(panels.size(), 1U);
    EXPECT_EQ(vxedGetPanelSetResourceHandle(L"ZORQ"), nullptr);
}

TEST_F(MenuHostTest, PanelsComeAsTheMenuHasThem) {
    ASSERT_NE(vxedGetPanelSetData(), nullptr);
    EXPECT_EQ(vxedGetPanelSetData()->size(), menu().catalog().data().panels.size());
    const VxPanelData* layers = panel(L"Layers");
    ASSERT_NE(layers, nullptr);
    EXPECT_EQ(layers->title, L"Layers");
    EXPECT_EQ(layers->menuGroup, L"ZORQ");
    EXPECT_EQ(layers->image, L"RCDATA_PANEL_LAYERS");
    EXPECT_EQ(layers->toolPanelIds, CStringArray{L"LayerTools"});
}

TEST_F(MenuHostTest, ItemsComeWithTheirFields) {
    const VxToolPanelData* items = vxedGetToolPanelData(L"HOUSETOOLS", L"ExampleModule");
    ASSERT_NE(items, nullptr);
    ASSERT_EQ(items->size(), 3U);
    EXPECT_EQ(items->at(0)->id, L"ID_ExampleCount");
    EXPECT_EQ(items->at(0)->module, L"VxExampleTools.qlx");
    EXPECT_EQ(items->at(0)->type, 0);
    EXPECT_EQ(items->at(1)->type, 4);
    EXPECT_EQ(items->at(2)->type, 2);
    EXPECT_EQ(items->at(2)->controlName, L"ExampleScaleControl");
    EXPECT_EQ(menu().labelOf(items->at(0)), L"Count the clicks");
    const VxToolPanelItemData foreign;
    EXPECT_EQ(menu().labelOf(&foreign), L"");
}

TEST_F(MenuHostTest, AToolPanelBelongsToItsMenuGroup) {
    EXPECT_EQ(vxedGetToolPanelData(L"ZORQ", L"ExampleModule"), nullptr);
    EXPECT_EQ(vxedGetToolPanelData(L"housetools", L"ExampleModule"), nullptr);
}

TEST_F(MenuHostTest, RecordsKeepTheirAddressesUntilAReload) {
    const VxToolPanelData* before = vxedGetToolPanelData(L"HOUSETOOLS", L"ExampleModule");
    before->front()->flags |= kItemDataInFlyout;
    EXPECT_EQ(vxedGetToolPanelData(L"HOUSETOOLS", L"ExampleModule"), before);
    EXPECT_EQ(before->front()->flags, kItemDataInFlyout);
    menu().reload();
    EXPECT_EQ(vxedGetToolPanelData(L"HOUSETOOLS", L"ExampleModule")->front()->flags, 0U);
}

TEST_F(MenuHostTest, TheWorkspaceSaysWhichPanelsAreVisible) {
    std::vector<VxWsPanelData> panels;
    EXPECT_TRUE(vxedGetWorkspacePanelData(panels));
    ASSERT_EQ(panels.size(), 8U);
    EXPECT_EQ(panels.front().panelId, L"Layers");

    EXPECT_FALSE(vxedGetPanelRefreshFromWS());
    EXPECT_TRUE(menu().switchWorkspace("Drafting"));
    EXPECT_TRUE(vxedGetPanelRefreshFromWS());
    EXPECT_TRUE(vxedGetWorkspacePanelData(panels));
    ASSERT_EQ(panels.size(), 4U);
    EXPECT_EQ(panels.back().menuGroup, L"HOUSETOOLS");
    vxedSetPanelRefreshFromWS(false);
    EXPECT_FALSE(vxedGetPanelRefreshFromWS());
    EXPECT_FALSE(menu().switchWorkspace("Nothing"));
}

TEST_F(MenuHostTest, AResourceModuleIsLoadedAtTheFirstQuestionAndOnce) {
    const std::size_t before = libraries().openCount();
    const HINSTANCE module = vxedGetPanelSetResourceHandle(L"HOUSETOOLS");
    ASSERT_NE(module, nullptr);
    EXPECT_EQ(vxedGetPanelSetResourceHandle(L"HOUSETOOLS"), module);
    EXPECT_EQ(libraries().openCount(), before + 1);
    EXPECT_TRUE(libraries().free(module));
    EXPECT_EQ(libraries().find(L"HouseTools.xmx"), nullptr);
}

TEST_F(MenuHostTest, AGroupWithoutResourceModuleHasNone) {
    EXPECT_EQ(vxedGetPanelSetResourceHandle(L"ZORQ"), nullptr);
    EXPECT_EQ(vxedGetPanelSetResourceHandle(L"Nothing"), nullptr);
}

TEST_F(MenuHostTest, AHiddenResourceModuleIsNullWhileItIsHidden) {
    bench.faults().hide("HouseTools.xmx");
    EXPECT_EQ(vxedGetPanelSetResourceHandle(L"HOUSETOOLS"), nullptr);
    bench.faults().unhide("HouseTools.xmx");
    EXPECT_NE(vxedGetPanelSetResourceHandle(L"HOUSETOOLS"), nullptr);
    bench.faults().hide("HouseTools.xmx");
    EXPECT_EQ(vxedGetPanelSetResourceHandle(L"HOUSETOOLS"), nullptr);
}

TEST_F(MenuHostTest, TheCustomizationDialogRemembersItsPanel) {
    EXPECT_FALSE(menu().customization().selection());
    zorqiGetCustomizationInterface()->selectPanel(L"ZORQ", L"Layers");
    EXPECT_EQ(menu().customization().selection(), (PanelKey{"Layers", "ZORQ"}));
    bench.faults().fail("zorqiGetCustomizationInterface", {}, 1);
    EXPECT_EQ(zorqiGetCustomizationInterface(), nullptr);
}

TEST_F(MenuHostTest, TheCallsCanBeToldToFail) {
    std::vector<VxWsPanelData> panels;
    bench.faults().fail("vxedGetPanelSetData", {}, 1);
    EXPECT_EQ(vxedGetPanelSetData(), nullptr);
    bench.faults().fail("vxedGetToolPanelData", {}, 1);
    EXPECT_EQ(vxedGetToolPanelData(L"ZORQ", L"LayerTools"), nullptr);
    bench.faults().fail("vxedGetWorkspacePanelData", {}, 1);
    EXPECT_FALSE(vxedGetWorkspacePanelData(panels));
    bench.faults().fail("vxedGetPanelSetResourceHandle", {}, 1);
    EXPECT_EQ(vxedGetPanelSetResourceHandle(L"HOUSETOOLS"), nullptr);
}

class MenuReloadTest : public testing::Test {
protected:
    MenuReloadTest() { write(R"({"menuGroups": [{"name": "G"}], "panels": [], "toolPanels": []})"); }
    ~MenuReloadTest() override { std::filesystem::remove(file); }

    void write(const std::string& text) const { std::ofstream(file) << text; }

    std::filesystem::path file =
        std::filesystem::path(testing::TempDir()) / "menu_reload_test.json";
    Faults faults;
    LibraryTable libraries{WORKBENCH_BIN_DIR, faults};
};

TEST_F(MenuReloadTest, AFailedReloadKeepsTheOldMenu) {
    MenuHost menu(testOptions(file), libraries);
    write("{");
    EXPECT_THROW(menu.reload(), InputError);
    EXPECT_NE(menu.catalog().findMenuGroup("G"), nullptr);
}

TEST_F(MenuReloadTest, AMalformedFileIsRefusedAtTheStart) {
    write("[]");
    EXPECT_THROW(MenuHost(testOptions(file), libraries), InputError);
}

}  // namespace workbench
