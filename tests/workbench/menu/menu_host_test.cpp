#include "workbench/menu/menu_host.h"

#include "tests/support/temporary_folder.h"
#include "tests/workbench/host/test_options.h"
#include "workbench/base/input_error.h"
#include "workbench/host/workbench.h"
#include "workbench/loader/module_loader.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace workbench {

class MenuHostTest : public testing::Test {
protected:
    static constexpr const char* kExample = PROJECT_SOURCE_ROOT "/examples/panels.json";

    MenuHost& menu() { return bench.menu(); }
    LibraryTable& libraries() { return bench.modules().libraries(); }

    Workbench bench{testOptions(kExample)};
};

TEST_F(MenuHostTest, ALabelIsFoundByTheItemsRecord) {
    const VxToolPanelData* items = vxedGetToolPanelData(L"HOUSETOOLS", L"ExampleModule");
    ASSERT_NE(items, nullptr);
    EXPECT_EQ(menu().labelOf(items->front()), L"Count the clicks");
    const VxToolPanelItemData foreign;
    EXPECT_EQ(menu().labelOf(&foreign), L"");
    EXPECT_EQ(menu().labelOf(nullptr), L"");
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

class MenuReloadTest : public testing::Test {
protected:
    MenuReloadTest() {
        write(R"({"menuGroups": [{"name": "G"}], "panels": [], "toolPanels": []})");
    }

    void write(const std::string& text) const { folder.write("menu.json", text); }

    support::TemporaryFolder folder;
    std::filesystem::path file = folder.path / "menu.json";
    Faults faults;
    LibraryTable libraries{WORKBENCH_BIN_DIR, faults};
};

TEST_F(MenuReloadTest, AFailedReloadKeepsTheOldMenu) {
    MenuHost menu(file, libraries);
    write("{");
    EXPECT_THROW(menu.reload(), InputError);
    EXPECT_NE(menu.catalog().findMenuGroup("G"), nullptr);
}

TEST_F(MenuReloadTest, AMalformedFileIsRefusedAtTheStart) {
    write("[]");
    EXPECT_THROW(MenuHost(file, libraries), InputError);
}

}  // namespace workbench
