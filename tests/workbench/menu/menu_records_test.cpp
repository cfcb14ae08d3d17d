#include "workbench/menu/menu_records.h"

#include "workbench/menu/menu_reader.h"

#include <gtest/gtest.h>

namespace workbench {

class MenuRecordsTest : public testing::Test {
protected:
    static constexpr const char* kMenu = R"({
        "menuGroups": [{"name": "G"}, {"name": "H"}],
        "panels": [{"menuGroup": "G", "id": "P", "title": "Panel", "image": "RCDATA_P",
                    "toolPanels": ["T", "F"]}],
        "toolPanels": [
            {"menuGroup": "G", "id": "T", "items": [
                {"type": "button", "id": "B", "name": "Button", "image": "RCDATA_B",
                 "macro": "_line\n"},
                {"type": "flyout", "id": "FLY", "name": "Flyout", "flyout": "F"},
                {"type": "separator"},
                {"type": "control", "control": "SomeControl", "module": "Some.qlx"},
                {"type": "rowBreak"}]},
            {"menuGroup": "G", "id": "F", "items": []}]
    })";

    const VxToolPanelItemData& item(std::size_t index) const {
        return *records.toolPanel("G", "T")->at(index);
    }

    MenuCatalog catalog{readMenuText(kMenu, "menu")};
    MenuRecords records{catalog};
};

TEST_F(MenuRecordsTest, APanelComesWithAllItsFields) {
    ASSERT_NE(records.panels(), nullptr);
    ASSERT_EQ(records.panels()->size(), 1U);
    const VxPanelData& panel = *records.panels()->front();
    EXPECT_EQ(panel.id, L"P");
    EXPECT_EQ(panel.title, L"Panel");
    EXPECT_EQ(panel.menuGroup, L"G");
    EXPECT_EQ(panel.image, L"RCDATA_P");
    EXPECT_EQ(panel.toolPanelIds, (CStringArray{L"T", L"F"}));
}

TEST_F(MenuRecordsTest, ItemsComeInOrderWithTheTypesOfTheToolkit) {
    ASSERT_EQ(records.toolPanel("G", "T")->size(), 5U);
    EXPECT_EQ(item(0).type, 0);
    EXPECT_EQ(item(1).type, 1);
    EXPECT_EQ(item(2).type, 3);
    EXPECT_EQ(item(3).type, 2);
    EXPECT_EQ(item(4).type, 4);
}

TEST_F(MenuRecordsTest, AnItemHasTheFieldsOfItsType) {
    EXPECT_EQ(item(0).id, L"B");
    EXPECT_EQ(item(0).smallImage, L"RCDATA_B");
    EXPECT_EQ(item(0).macro, L"_line\n");
    EXPECT_EQ(item(0).flags, 0U);
    EXPECT_EQ(item(1).flyoutId, L"F");
    EXPECT_EQ(item(1).flyoutImage, 0);
    EXPECT_EQ(item(3).controlName, L"SomeControl");
    EXPECT_EQ(item(3).module, L"Some.qlx");
}

TEST_F(MenuRecordsTest, AnEmptyToolPanelIsThereAndAnUnknownOneIsNot) {
    ASSERT_NE(records.toolPanel("G", "F"), nullptr);
    EXPECT_TRUE(records.toolPanel("G", "F")->empty());
    EXPECT_EQ(records.toolPanel("H", "T"), nullptr);
    EXPECT_EQ(records.toolPanel("g", "T"), nullptr);
    EXPECT_EQ(records.toolPanel("G", "X"), nullptr);
}

TEST_F(MenuRecordsTest, ARecordLeadsBackToItsItem) {
    ASSERT_NE(records.itemOf(&item(0)), nullptr);
    EXPECT_EQ(records.itemOf(&item(0))->name, "Button");
    const VxToolPanelItemData foreign;
    EXPECT_EQ(records.itemOf(&foreign), nullptr);
}

TEST_F(MenuRecordsTest, AMenuWithoutPanelsHasNoPanelData) {
    const MenuCatalog empty{MenuData{}};
    EXPECT_EQ(MenuRecords(empty).panels(), nullptr);
}

}  // namespace workbench
