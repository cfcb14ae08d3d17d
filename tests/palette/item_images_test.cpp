#include "palette/item_images.h"

#include "core/resources.h"
#include "tests/palette/palette_fixture.h"
#include "workbench/toolkit/tool_panel_item_record.h"
#include "workbench/toolkit/toolkit.h"

namespace {

using Lines = std::vector<std::string>;

/// A picture of one transparent pixel, as a PNG file has it.
constexpr unsigned char kOnePixel[] = {
    0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a, 0x00, 0x00, 0x00, 0x0d, 0x49, 0x48,
    0x44, 0x52, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x01, 0x08, 0x06, 0x00, 0x00,
    0x00, 0x1f, 0x15, 0xc4, 0x89, 0x00, 0x00, 0x00, 0x0b, 0x49, 0x44, 0x41, 0x54, 0x78,
    0x9c, 0x63, 0x60, 0x00, 0x02, 0x00, 0x00, 0x05, 0x00, 0x01, 0x7a, 0x5e, 0xab, 0x3f,
    0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4e, 0x44, 0xae, 0x42, 0x60, 0x82};

class ItemImagesTest : public PaletteTest {
protected:
    std::string small(const CQrUiToolPanelItem& item) {
        return bench().toolkit().pictures().source(item.m_record->smallImage);
    }
    std::string large(const CQrUiToolPanelItem& item) {
        return bench().toolkit().pictures().source(item.m_record->largeImage);
    }
    std::string titleImage(const wchar_t* menuGroup, const wchar_t* id) {
        const auto& images = bench().toolkit().panels().of(panel(menuGroup, id)).images;
        const auto found = images.find(1);
        return found == images.end() ? "" : bench().toolkit().pictures().source(found->second);
    }
};

TEST_F(ItemImagesTest, ComeFromTheLibraryOfToolImages) {
    show();
    // The first item of the ID stands on the panel that was built first and has no picture.
    EXPECT_EQ(small(*item(L"ID_Line", 0)), "");
    EXPECT_EQ(small(*item(L"ID_Line", 1)), "RCDATA_TOOL_ID_LINE");
    EXPECT_EQ(large(*item(L"ID_Line", 1)), "RCDATA_TOOL_ID_LINE");
}

TEST_F(ItemImagesTest, ComeFromTheMenuGroupsModuleIfTheLibraryHasNone) {
    show();
    EXPECT_EQ(small(*item(L"ID_Wall")), "RCDATA_TOOL_HT_WALL");
    EXPECT_EQ(large(*item(L"ID_Wall")), "RCDATA_TOOL_HT_WALL");
}

TEST_F(ItemImagesTest, AFlyoutTakesOneOnlyIfItHasItsOwn) {
    show();
    EXPECT_EQ(small(*item(L"TPL_A")), "");
    EXPECT_EQ(small(*item(L"TPL_Own")), "RCDATA_TOOL_ID_ERASE");
}

TEST_F(ItemImagesTest, ToolsOfAFlyoutHaveTheirs) {
    show();
    EXPECT_EQ(small(*item(L"ID_A1")), "RCDATA_TOOL_ID_LINE");
}

TEST_F(ItemImagesTest, PanelsHaveATitleImageFromEitherLibrary) {
    show();
    EXPECT_EQ(titleImage(L"MAIN", L"Draw"), "RCDATA_PANEL_DRAW");
    EXPECT_EQ(titleImage(L"OTHER", L"Draw"), "RCDATA_PANEL_HOUSETOOLS");
    EXPECT_EQ(titleImage(L"MAIN", L"Layers"), "");
}

// Where pictures are looked for

/// The questions for pictures since the journal was forgotten.
class PictureSourceTest : public ItemImagesTest {
protected:
    Lines takeQuestions() {
        return takeLines({"QrUiLoadImageFromResource", "vxedGetPanelSetResourceHandle",
                          "LoadBitmapFileGdiPlus"});
    }
    void loadImages(const wchar_t* menuGroup, const wchar_t* smallKey, const wchar_t* largeKey) {
        CQrUiToolPanelItem plain(nullptr);
        VxToolPanelItemData data;
        data.smallImage = smallKey;
        data.largeImage = largeKey;
        forget();
        loadItemImages(plain, data, menuGroup);
        m_small = small(plain);
        m_large = large(plain);
    }

    std::string m_small;
    std::string m_large;
};

TEST_F(PictureSourceTest, TheLibraryOfToolImagesComesFirstThenTheGroupsModuleForEachSize) {
    show();
    loadImages(L"OTHER", L"SMALL", L"LARGE");
    EXPECT_EQ(takeQuestions(),
              (Lines{"QrUiLoadImageFromResource(\"ZORQbtn.xmx\", \"SMALL\", 16, -1)",
                     "vxedGetPanelSetResourceHandle(\"OTHER\")",
                     "QrUiLoadImageFromResource(\"HouseTools.xmx\", \"SMALL\", 16, -1)",
                     "QrUiLoadImageFromResource(\"ZORQbtn.xmx\", \"LARGE\", 32, -1)",
                     "vxedGetPanelSetResourceHandle(\"OTHER\")",
                     "QrUiLoadImageFromResource(\"HouseTools.xmx\", \"LARGE\", 32, -1)"}));
}

TEST_F(PictureSourceTest, AGroupWithoutAModuleIsNoSource) {
    show();
    loadImages(L"MAIN", L"SMALL", L"LARGE");
    EXPECT_EQ(takeQuestions(),
              (Lines{"QrUiLoadImageFromResource(\"ZORQbtn.xmx\", \"SMALL\", 16, -1)",
                     "vxedGetPanelSetResourceHandle(\"MAIN\")",
                     "QrUiLoadImageFromResource(\"ZORQbtn.xmx\", \"LARGE\", 32, -1)",
                     "vxedGetPanelSetResourceHandle(\"MAIN\")"}));
}

TEST_F(PictureSourceTest, WhatTheLibraryHasIsLookedForNowhereElse) {
    show();
    loadImages(L"OTHER", L"RCDATA_TOOL_ID_LINE", L"RCDATA_TOOL_ID_ERASE");
    EXPECT_EQ(
        takeQuestions(),
        (Lines{"QrUiLoadImageFromResource(\"ZORQbtn.xmx\", \"RCDATA_TOOL_ID_LINE\", 16, -1)",
               "QrUiLoadImageFromResource(\"ZORQbtn.xmx\", \"RCDATA_TOOL_ID_ERASE\", 32, -1)"}));
    EXPECT_EQ(m_small, "RCDATA_TOOL_ID_LINE");
    EXPECT_EQ(m_large, "RCDATA_TOOL_ID_ERASE");
}

TEST_F(PictureSourceTest, ASizeWithoutAKeyAsksForNothing) {
    show();
    loadImages(L"OTHER", L"", L"RCDATA_TOOL_ID_LINE");
    EXPECT_EQ(takeQuestions(),
              Lines{"QrUiLoadImageFromResource(\"ZORQbtn.xmx\", \"RCDATA_TOOL_ID_LINE\", 32, -1)"});
    EXPECT_EQ(m_small, "");
    loadImages(L"OTHER", L"RCDATA_TOOL_ID_LINE", L"");
    EXPECT_EQ(takeQuestions(),
              Lines{"QrUiLoadImageFromResource(\"ZORQbtn.xmx\", \"RCDATA_TOOL_ID_LINE\", 16, -1)"});
    EXPECT_EQ(m_large, "");
    loadImages(L"OTHER", L"", L"");
    EXPECT_EQ(takeQuestions(), Lines{});
}

TEST_F(PictureSourceTest, OneLibraryAnswersWhetherItHasThePicture) {
    show();
    CQrUiToolPanelItem plain(nullptr);
    EXPECT_TRUE(loadItemImage(plain, L"RCDATA_TOOL_ID_LINE", iconLibrary(), ItemImageSize::Small));
    EXPECT_TRUE(loadItemImage(plain, L"RCDATA_TOOL_ID_ERASE", iconLibrary(), ItemImageSize::Large));
    EXPECT_FALSE(loadItemImage(plain, L"RCDATA_NOWHERE", iconLibrary(), ItemImageSize::Small));
    EXPECT_FALSE(loadItemImage(plain, L"RCDATA_TOOL_ID_LINE", nullptr, ItemImageSize::Small));
    EXPECT_EQ(small(plain), "RCDATA_TOOL_ID_LINE");
    EXPECT_EQ(large(plain), "RCDATA_TOOL_ID_ERASE");
}

TEST_F(PictureSourceTest, APanelsImageIsLookedForInTheLibraryThenTheGroupThenAsAFile) {
    show();
    EXPECT_NE(loadPanelImage(L"RCDATA_PANEL_DRAW", L"OTHER"), nullptr);
    EXPECT_EQ(takeQuestions(),
              Lines{"QrUiLoadImageFromResource(\"ZORQbtn.xmx\", \"RCDATA_PANEL_DRAW\", 16, -1)"});
    EXPECT_NE(loadPanelImage(L"RCDATA_PANEL_HOUSETOOLS", L"OTHER"), nullptr);
    EXPECT_EQ(
        takeQuestions(),
        (Lines{
            "QrUiLoadImageFromResource(\"ZORQbtn.xmx\", \"RCDATA_PANEL_HOUSETOOLS\", 16, -1)",
            "vxedGetPanelSetResourceHandle(\"OTHER\")",
            "QrUiLoadImageFromResource(\"HouseTools.xmx\", \"RCDATA_PANEL_HOUSETOOLS\", 16, -1)"}));
    EXPECT_EQ(loadPanelImage(L"RCDATA_NOWHERE", L"OTHER"), nullptr);
    EXPECT_EQ(takeQuestions(),
              (Lines{"QrUiLoadImageFromResource(\"ZORQbtn.xmx\", \"RCDATA_NOWHERE\", 16, -1)",
                     "vxedGetPanelSetResourceHandle(\"OTHER\")",
                     "QrUiLoadImageFromResource(\"HouseTools.xmx\", \"RCDATA_NOWHERE\", 16, -1)",
                     "LoadBitmapFileGdiPlus(\"RCDATA_NOWHERE\")"}));
}

TEST_F(PictureSourceTest, APanelsImageMayBeAFile) {
    show();
    const std::string png(reinterpret_cast<const char*>(kOnePixel), sizeof kOnePixel);
    const std::filesystem::path file = writeFile("panel.png", png);
    HBITMAP picture = loadPanelImage(file.wstring(), L"MAIN");
    EXPECT_EQ(bench().toolkit().pictures().source(picture), file.string());
}

/// A type of item without pictures.
class TypeWithoutImageTest : public ItemImagesTest, public testing::WithParamInterface<int> {};

TEST_P(TypeWithoutImageTest, TakesNone) {
    show();
    CQrUiToolPanelItem plain(nullptr);
    VxToolPanelItemData data;
    data.type = GetParam();
    data.smallImage = L"RCDATA_TOOL_ID_LINE";
    data.largeImage = L"RCDATA_TOOL_ID_LINE";
    forget();
    loadItemImages(plain, data, L"MAIN");
    EXPECT_EQ(small(plain), "");
    EXPECT_EQ(takeLines(), Lines{});
}

INSTANTIATE_TEST_SUITE_P(Types, TypeWithoutImageTest, testing::Values(1, 2, 3, 4));

TEST_F(ItemImagesTest, AHostToolbarsIconHasOne) {
    show();
    CQrUiToolPanelItem icon(nullptr);
    VxToolPanelItemData data;
    data.type = 6;
    data.smallImage = L"RCDATA_TOOL_ID_LINE";
    loadItemImages(icon, data, L"MAIN");
    EXPECT_EQ(small(icon), "RCDATA_TOOL_ID_LINE");
}

/// A key, and whether it names a file.
struct KeyRow {
    const wchar_t* key;
    bool isFile;
};

class KeyTest : public ItemImagesTest, public testing::WithParamInterface<KeyRow> {};

TEST_P(KeyTest, WithAnExtensionNamesAFile) {
    show();
    CQrUiToolPanelItem plain(nullptr);
    EXPECT_FALSE(loadItemImage(plain, GetParam().key, iconLibrary(), ItemImageSize::Small));
    EXPECT_EQ(callCount("LoadBitmapFileGdiPlus"), GetParam().isFile ? 1 : 0);
    EXPECT_EQ(callCount("QrUiLoadImageFromResource"), GetParam().isFile ? 0 : 1);
}

INSTANTIATE_TEST_SUITE_P(Keys, KeyTest,
                         testing::Values(KeyRow{L"tool.bmp", true}, KeyRow{L"a/tool.png", true},
                                         KeyRow{L"a\\tool.bmp", true}, KeyRow{L"tool", false},
                                         KeyRow{L"a.b/tool", false}, KeyRow{L"tool.", false}));

TEST_F(ItemImagesTest, AFileIsSetAndTheSecondSourceIsTriedAllTheSame) {
    show();
    const std::string png(reinterpret_cast<const char*>(kOnePixel), sizeof kOnePixel);
    const std::filesystem::path file = writeFile("tool.png", png);
    VxToolPanelItemData data;
    data.smallImage = file.wstring();
    CQrUiToolPanelItem twice(nullptr);
    loadItemImages(twice, data, L"OTHER");
    EXPECT_EQ(small(twice), file.string());
    EXPECT_EQ(callCount("LoadBitmapFileGdiPlus"), 2);
    // The other menu group has no second source.
    forget();
    CQrUiToolPanelItem once(nullptr);
    loadItemImages(once, data, L"MAIN");
    EXPECT_EQ(small(once), file.string());
    EXPECT_EQ(callCount("LoadBitmapFileGdiPlus"), 1);
}

TEST_F(ItemImagesTest, AnEmptyKeyLoadsNothing) {
    show();
    CQrUiToolPanelItem plain(nullptr);
    EXPECT_FALSE(loadItemImage(plain, L"", iconLibrary(), ItemImageSize::Small));
    EXPECT_EQ(loadPanelImage(L"", L"MAIN"), nullptr);
    EXPECT_EQ(callCount("QrUiLoadImageFromResource"), 0);
}

}  // namespace
