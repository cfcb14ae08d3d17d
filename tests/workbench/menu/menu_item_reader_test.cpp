#include "workbench/menu/menu_item_reader.h"

#include "workbench/base/input_error.h"
#include "workbench/base/json_parser.h"

#include <gtest/gtest.h>

#include <string>

namespace workbench {

namespace {

MenuItem read(const std::string& text) {
    const std::string file = "menu.json";
    const JsonValue root = parseJson(text, file);
    return readMenuItem(JsonView(root, file));
}

struct BadItem {
    const char* text;
    const char* complaint;
};

class BadMenuItemTest : public testing::TestWithParam<BadItem> {};

}  // namespace

TEST(MenuItemReaderTest, AButtonTakesAllItsKeys) {
    const MenuItem item = read(R"({"type": "button", "id": "ID_A", "name": "Line",
        "smallImage": "S", "largeImage": "L.bmp", "macro": "_line\n", "module": "M.qlx"})");
    EXPECT_EQ(item.type, MenuItemType::Button);
    EXPECT_EQ(item.id, "ID_A");
    EXPECT_EQ(item.name, "Line");
    EXPECT_EQ(item.smallImage, "S");
    EXPECT_EQ(item.largeImage, "L.bmp");
    EXPECT_EQ(item.macro, "_line\n");
    EXPECT_EQ(item.module, "M.qlx");
}

TEST(MenuItemReaderTest, AButtonNeedsNoMoreThanAnId) {
    const MenuItem item = read(R"({"type": "button", "id": "ID_A"})");
    EXPECT_EQ(item.name + item.smallImage + item.largeImage + item.macro + item.module, "");
}

TEST(MenuItemReaderTest, OneImageStandsForBothSizes) {
    const MenuItem item = read(R"({"type": "button", "id": "ID_A", "image": "I"})");
    EXPECT_EQ(item.smallImage, "I");
    EXPECT_EQ(item.largeImage, "I");
}

TEST(MenuItemReaderTest, AFlyoutNamesItsToolPanelAndHasNoPictureOfItsOwnUnlessItSaysSo) {
    const MenuItem plain = read(R"({"type": "flyout", "id": "F", "flyout": "T"})");
    EXPECT_EQ(plain.type, MenuItemType::Flyout);
    EXPECT_EQ(plain.flyoutId, "T");
    EXPECT_FALSE(plain.flyoutOwnImage);
    const MenuItem own =
        read(R"({"type": "flyout", "id": "F", "flyout": "T", "ownImage": true, "image": "I"})");
    EXPECT_TRUE(own.flyoutOwnImage);
    EXPECT_EQ(own.smallImage, "I");
}

TEST(MenuItemReaderTest, AControlBearsItsNameAsIdUnlessItHasOne) {
    const MenuItem plain = read(R"({"type": "control", "control": "UCSControl"})");
    EXPECT_EQ(plain.type, MenuItemType::Control);
    EXPECT_EQ(plain.controlName, "UCSControl");
    EXPECT_EQ(plain.id, "UCSControl");
    const MenuItem named =
        read(R"({"type": "control", "control": "C", "id": "ID_C", "name": "N", "module": "M"})");
    EXPECT_EQ(named.id, "ID_C");
    EXPECT_EQ(named.name, "N");
    EXPECT_EQ(named.module, "M");
}

TEST(MenuItemReaderTest, AControlThatNobodyKnowsIsTaken) {
    EXPECT_EQ(read(R"({"type": "control", "control": "NoSuch", "module": "No.qlx"})").controlName,
              "NoSuch");
}

TEST(MenuItemReaderTest, SeparatorsAndRowBreaksAreBare) {
    EXPECT_EQ(read(R"({"type": "separator"})").type, MenuItemType::Separator);
    EXPECT_EQ(read(R"({"type": "rowBreak"})").type, MenuItemType::RowBreak);
}

TEST_P(BadMenuItemTest, IsRefusedWithItsPlace) {
    try {
        read(GetParam().text);
        FAIL() << "taken: " << GetParam().text;
    } catch (const InputError& error) {
        EXPECT_STREQ(error.what(), GetParam().complaint);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Items, BadMenuItemTest,
    testing::Values(
        BadItem{"7", "menu.json:1: must be an object, not a number"},
        BadItem{"{}", "menu.json:1: needs the key \"type\""},
        BadItem{R"({"type": 0})", "menu.json:1: /type: must be a string, not a number"},
        BadItem{R"({"type": "Button"})", "menu.json:1: /type: unknown item type \"Button\""},
        BadItem{R"({"type": "button"})", "menu.json:1: needs the key \"id\""},
        BadItem{R"({"type": "button", "id": ""})", "menu.json:1: /id: must not be empty"},
        BadItem{R"({"type": "button", "id": "A", "macro": 1})",
                "menu.json:1: /macro: must be a string, not a number"},
        BadItem{R"({"type": "button", "id": "A", "flyout": "T"})",
                "menu.json:1: /flyout: unknown key \"flyout\""},
        BadItem{R"({"type": "button", "id": "A", "image": "I", "smallImage": "S"})",
                "menu.json:1: /image: stands for both sizes: leave out \"smallImage\" and "
                "\"largeImage\""},
        BadItem{R"({"type": "flyout", "id": "A"})", "menu.json:1: needs the key \"flyout\""},
        BadItem{R"({"type": "flyout", "id": "A", "flyout": "T", "ownImage": 1})",
                "menu.json:1: /ownImage: must be true or false, not a number"},
        BadItem{R"({"type": "control", "id": "A"})", "menu.json:1: needs the key \"control\""},
        BadItem{R"({"type": "control", "control": ""})",
                "menu.json:1: /control: must not be empty"},
        BadItem{R"({"type": "separator", "id": "A"})", "menu.json:1: /id: unknown key \"id\""},
        BadItem{R"({"type": "rowBreak", "name": "A"})",
                "menu.json:1: /name: unknown key \"name\""}));

}  // namespace workbench
