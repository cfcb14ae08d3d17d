#include "tests/resources/loaded_module.h"
#include "workbench/resources/png_picture.h"
#include "workbench/resources/resource_library.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

using workbench::PictureBytes;
using workbench::PngPicture;
using workbench::ResourceLibrary;

// Every string number that a part of the dashboard loads.
constexpr std::uint32_t kStringNumbers[] = {
    201,  203,  204,  205,  206,  207,  208,  209,                                 // menus
    211,  212,  214,  215,  218,  219,                                             // edge sliders
    220,  221,  222,  223,  225,  226,  227,                                       // layer states
    228,  229,  230,  231,  235,  236,  237,  238,                                 // sun, glyphs
    240,  241,  242,  243,  244,  245,  246,  247,  248,                           // location
    253,  254,  255,  256,  257,  258,  260,  261,                                 // labels
    262,  263,  264,  265,  266,  267,  268,  269,  270,  271,  272,               // filter menu
    273,  274,  275,  276,  277,  278,  279,  280,  281,  282,                     // filter menu
    1210, 1211, 1212, 1213, 1214, 1215, 1216, 1217, 1218, 1219, 1220, 1221, 1222,  // views
    1227, 1228, 1229, 1230, 1231, 1232, 1234, 1235, 1236, 1237, 1238,  // walking, camera
    1241, 1242, 1243, 1244, 1245, 1246, 1247, 1248, 1249,              // lens, recording
    1262, 1263, 1264, 1265,                                            // styles, colours
    1270, 1271, 1272, 1273, 1274, 1275, 1276, 1277, 1278, 1279, 1280, 1281, 1282,  // sun, points
    1292,                                                                          // customize
    3900, 3901, 3902, 3906, 3907, 3908, 3909, 3910, 3911, 3912, 3913,              // render
    3923, 3924, 3925, 3926, 3927, 3928, 3929, 3930,                                // render
    3983, 3984, 3985, 3986, 3987, 3988, 3989, 3991, 3992, 3993, 3994,              // file, quality
    3995, 3996, 3997, 3998,                                                        // layer fading
    4001, 4002, 4003, 4004};                                                       // text, layers

// Every image key that a part of the dashboard loads, and the icon of its window.
constexpr const char* kImageKeys[] = {
    "#220",
    "RCDATA_3DNAV_COMBO",
    "RCDATA_3DNAV_POINTTRIPLETPANEL1",
    "RCDATA_3DNAV_POINTTRIPLETPANEL2",
    "RCDATA_3DNAV_SLIDERCONTROL1",
    "RCDATA_3DNAV_SLIDERCONTROL2",
    "RCDATA_3DNAV_SLIDERCONTROL3",
    "RCDATA_3DNAV_VIEW_BACK",
    "RCDATA_3DNAV_VIEW_BOTTOM",
    "RCDATA_3DNAV_VIEW_FRONT",
    "RCDATA_3DNAV_VIEW_LEFT",
    "RCDATA_3DNAV_VIEW_NE",
    "RCDATA_3DNAV_VIEW_NW",
    "RCDATA_3DNAV_VIEW_RIGHT",
    "RCDATA_3DNAV_VIEW_SE",
    "RCDATA_3DNAV_VIEW_SW",
    "RCDATA_3DNAV_VIEW_TOP",
    "RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_OFF",
    "RCDATA_LAYER_TRANSPARENCE_SLIDER_BTN_ON",
    "RCDATA_LIGHT_PDL_OFF",
    "RCDATA_LIGHT_PDL_ON",
    "RCDATA_LIGHT_SLIDERCONTROL1",
    "RCDATA_LIGHT_SLIDERCONTROL2",
    "RCDATA_LIGHT_SLIDERCONTROL3",
    "RCDATA_LIGHT_SLIDERCONTROL4",
    "RCDATA_LIGHT_SLIDERCONTROL5",
    "RCDATA_LIGHT_SUN_OFF",
    "RCDATA_LIGHT_SUN_ON",
    "RCDATA_OPCOLOR_ICON",
    "RCDATA_OPLTYPE_ICON",
    "RCDATA_OPLWEIGHT_ICON",
    "RCDATA_OPPSTYLE_ICON",
    "RCDATA_RENDER_IMAGEQUALITY_SLIDER",
    "RCDATA_RENDER_OUTPUTFILE_OFF",
    "RCDATA_RENDER_OUTPUTFILE_ON",
    "RCDATA_RENDER_PROGRESS",
    "RCDATA_VS_EDGEOVERHANG_SLIDER",
    "RCDATA_VS_JITTEREDGE_SLIDER",
};

/// The inserts of a format, in order, such as {"%ls", "%d"}.
std::vector<std::string> insertsOf(const std::string& text) {
    static const std::regex kInsert("%[-+ #0-9.]*(ls|[a-zA-Z%])");
    return {std::sregex_token_iterator(text.begin(), text.end(), kInsert),
            std::sregex_token_iterator()};
}

PngPicture decode(const ResourceLibrary& library, const std::string& key, std::uint32_t size) {
    const auto bytes = library.findPicture(key, size);
    if (!bytes)
        throw std::runtime_error(key + " is missing at " + std::to_string(size));
    return workbench::decodePng(bytes->data, bytes->length, key);
}

class DashboardResourcesTest : public testing::Test {
protected:
    std::string text(std::uint32_t id) const {
        return std::string(library.findString(id).value_or("(missing)"));
    }

    LoadedModule module{"VxDashboardRes.dll"};
    ResourceLibrary library{module.directory()};
};

TEST_F(DashboardResourcesTest, EveryStringIsThereAndSaysSomething) {
    for (const std::uint32_t id : kStringNumbers) {
        const auto found = library.findString(id);
        ASSERT_TRUE(found.has_value()) << id;
        EXPECT_FALSE(found->empty()) << id;
    }
}

TEST_F(DashboardResourcesTest, NoStringIsThereThatNobodyLoads) {
    const ResourceDirectory* directory = module.directory();
    ASSERT_NE(directory, nullptr);
    EXPECT_EQ(directory->stringCount, std::size(kStringNumbers));
}

TEST_F(DashboardResourcesTest, FormatsHaveTheirInserts) {
    const std::vector<std::string> none;
    const std::vector<std::string> one{"%ls"};
    const std::vector<std::string> two{"%ls", "%ls"};
    for (const std::uint32_t id : kStringNumbers) {
        const bool takesOne = id == 1210 || id == 1242 || id == 1244;
        const bool takesTwo = id == 1229 || id == 1247 || id == 3998;
        EXPECT_EQ(insertsOf(text(id)), takesOne ? one : takesTwo ? two : none) << id;
    }
}

TEST_F(DashboardResourcesTest, TextsWithAPartOfTheirOwnToPlay) {
    EXPECT_EQ(text(201), "DASHBOARDOLD");  // the local name must be a command name
    EXPECT_EQ(text(4003).back(), '?');     // a Yes keeps the current layer on
    EXPECT_NE(text(4003).find("keep it on"), std::string::npos);
    // Views 8 and 9 have their numbers the other way round.
    EXPECT_EQ(text(1219), "NW Isometric");
    EXPECT_EQ(text(1220), "NE Isometric");
    EXPECT_NE(text(229), text(230));
    EXPECT_NE(text(222), text(223));
    EXPECT_NE(text(1248), text(1249));
    EXPECT_NE(text(3993), text(3994));
}

TEST_F(DashboardResourcesTest, JoinedTextsReadWell) {
    EXPECT_EQ(text(221) + text(222),
              "Default lighting: on, click to use the lights of the drawing");
    EXPECT_EQ(text(231) + text(228) + text(229), "Sun status: on, click to switch it off");
    EXPECT_EQ(text(235) + text(238), "Hide the light glyphs (now shown)");
    EXPECT_EQ(text(236) + text(237), "Show the light glyphs (now hidden)");
    EXPECT_EQ(text(240) + "Oslo" + text(248) + text(241) + "59.9" + text(244) + text(242) + "10.7" +
                  text(246),
              "Geographic location: Oslo, latitude 59.9 N, longitude 10.7 E");
    EXPECT_EQ(text(253) + "1 May", "Date: 1 May");
    EXPECT_EQ(text(3908) + " 'Draft'", "Press OK to replace the preset 'Draft'");
    EXPECT_EQ(text(3923) + "-1", "Image quality: -1");
}

TEST_F(DashboardResourcesTest, EveryImageIsThereInBothSizes) {
    for (const char* key : kImageKeys) {
        for (const std::uint32_t size : {16U, 32U}) {
            const PngPicture picture = decode(library, key, size);
            EXPECT_EQ(picture.width, size) << key;
            EXPECT_EQ(picture.height, size) << key;
        }
    }
}

TEST_F(DashboardResourcesTest, IconsAreTransparentAroundTheirLines) {
    for (const char* key : kImageKeys) {
        const PngPicture picture = decode(library, key, 32);
        std::size_t clear = 0;
        std::size_t drawn = 0;
        for (std::size_t alpha = 3; alpha < picture.rgba.size(); alpha += 4) {
            clear += picture.rgba[alpha] == 0 ? 1U : 0U;
            drawn += picture.rgba[alpha] > 200 ? 1U : 0U;
        }
        EXPECT_GT(clear, 100U) << key;
        EXPECT_GT(drawn, 50U) << key;
    }
}

TEST_F(DashboardResourcesTest, NoTwoIconsLookTheSame) {
    std::set<std::vector<std::uint8_t>> seen;
    for (const char* key : kImageKeys) {
        EXPECT_TRUE(seen.insert(decode(library, key, 16).rgba).second) << key;
    }
}

TEST_F(DashboardResourcesTest, FilterStripHasFiveImagesOnTheMaskColour) {
    const PngPicture strip = decode(library, "#1290", 16);
    EXPECT_EQ(strip.width, 5U * 16U);
    EXPECT_EQ(strip.height, 16U);

    std::set<std::vector<std::uint8_t>> colours;
    for (std::size_t i = 0; i < strip.rgba.size(); i += 4) {
        const auto pixel = strip.rgba.begin() + static_cast<std::ptrdiff_t>(i);
        colours.insert({pixel, pixel + 4});
    }
    EXPECT_EQ(colours.count({0xFF, 0x00, 0xFF, 0xFF}), 1U);
    // Only flat colours: a smoothed edge would leave pixels that are nearly the mask colour.
    EXPECT_LE(colours.size(), 4U);
}

TEST_F(DashboardResourcesTest, CheckMarkHasItsTransparentColourInTheCorner) {
    const PngPicture check = decode(library, "#1291", 16);
    ASSERT_EQ(check.width, 16U);
    ASSERT_EQ(check.height, 16U);
    EXPECT_EQ(std::vector<std::uint8_t>(check.rgba.begin(), check.rgba.begin() + 4),
              (std::vector<std::uint8_t>{0xFF, 0x00, 0xFF, 0xFF}));
}

}  // namespace
