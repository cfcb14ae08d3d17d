#include "tests/resources/loaded_module.h"
#include "workbench/resources/png_picture.h"
#include "workbench/resources/resource_library.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace {

using workbench::ResourceLibrary;

// What holds for every resource module, whatever it is for.
class ResourceModulesTest : public testing::TestWithParam<const char*> {
protected:
    LoadedModule module{GetParam()};
};

TEST_P(ResourceModulesTest, StringsAscendByNumber) {
    const ResourceDirectory* directory = module.directory();
    ASSERT_NE(directory, nullptr);
    for (std::uint32_t i = 1; i < directory->stringCount; ++i) {
        EXPECT_LT(directory->strings[i - 1].id, directory->strings[i].id);
    }
}

TEST_P(ResourceModulesTest, PicturesAscendByKeyThenSize) {
    const ResourceDirectory* directory = module.directory();
    ASSERT_NE(directory, nullptr);
    ASSERT_GT(directory->pictureCount, 0U);
    const auto place = [](const ResourcePicture& picture) {
        return std::make_tuple(std::string_view(picture.key), picture.size);
    };
    for (std::uint32_t i = 1; i < directory->pictureCount; ++i) {
        EXPECT_LT(place(directory->pictures[i - 1]), place(directory->pictures[i]));
    }
}

TEST_P(ResourceModulesTest, EveryPictureDecodesToItsHeight) {
    const ResourceDirectory* directory = module.directory();
    ASSERT_NE(directory, nullptr);
    for (std::uint32_t i = 0; i < directory->pictureCount; ++i) {
        const ResourcePicture& entry = directory->pictures[i];
        const auto picture = workbench::decodePng(entry.png, entry.length, entry.key);
        EXPECT_EQ(picture.height, entry.size) << entry.key;
    }
}

TEST_P(ResourceModulesTest, NoPictureIsThereTwice) {
    const ResourceDirectory* directory = module.directory();
    ASSERT_NE(directory, nullptr);
    std::set<std::string_view> seen;
    for (std::uint32_t i = 0; i < directory->pictureCount; ++i) {
        const ResourcePicture& entry = directory->pictures[i];
        const std::string_view bytes(reinterpret_cast<const char*>(entry.png), entry.length);
        EXPECT_TRUE(seen.insert(bytes).second) << entry.key;
    }
}

INSTANTIATE_TEST_SUITE_P(Modules, ResourceModulesTest,
                         testing::Values("VxDashboardRes.dll", "ZORQbtn.xmx", "HouseTools.xmx"),
                         [](const testing::TestParamInfo<const char*>& module) {
                             const std::string_view file(module.param);
                             return std::string(file.substr(0, file.find('.')));
                         });

/// One module's pictures, by the ends of their keys.
struct ToolIcons {
    const char* file;
    const char* prefix;
    std::vector<const char*> names;
};

class ToolIconsTest : public testing::TestWithParam<ToolIcons> {};

TEST_P(ToolIconsTest, EveryToolHasItsPictureInBothSizes) {
    const LoadedModule module(GetParam().file);
    const ResourceLibrary library(module.directory());
    for (const char* name : GetParam().names) {
        const std::string key = std::string(GetParam().prefix) + name;
        EXPECT_TRUE(library.findPicture(key, 16).has_value()) << key;
        EXPECT_TRUE(library.findPicture(key, 32).has_value()) << key;
    }
}

const ToolIcons kToolIcons[] = {
    {"ZORQbtn.xmx",
     "RCDATA_TOOL_",
     {"MM_1572", "MM_1573", "TPL_0023", "TPL_0025", "TPL_0026", "TPL_0027", "TPL_0028", "TPL_0030",
      "TPL_0042", "TPL_0044"}},
    {"ZORQbtn.xmx",
     "RCDATA_TOOL_ID_",
     {"3DCORBIT",
      "3DDISTANC",
      "3DFLY",
      "3DSWIVEL",
      "3DWALK",
      "3DWALK_SETTINGS",
      "ADJUST_EXPOSURE",
      "ANIMATION_PAUSE",
      "ANIMATION_PLAY",
      "ANIMATION_RECORD",
      "ANIMATION_SAVE",
      "ANIMATION_SETTINGS",
      "CAMERA",
      "CAMERAS_ONOF",
      "CIRCLE",
      "CONSTRAINED_ORBIT",
      "DEFAULTLIGHTING",
      "DISTANTLIGHT",
      "ERASE",
      "EXAMPLECOUNT",
      "FREE_ORBIT",
      "GEOLOCATION",
      "LAYERMANAGER",
      "LIGHT",
      "LIGHTINGUNITSAMERICAN",
      "LIGHTINGUNITSGENERIC",
      "LIGHTINGUNITSSI",
      "LINE",
      "PARALLEL_PROJECTION",
      "PERSPECTIVE_PROJECTION",
      "RENDER",
      "SKYLIGHT_BACKGROUND",
      "SKYLIGHT_ILLUMINATION",
      "SKYLIGHT_OFF",
      "SUNSTATUS",
      "VSEDGES_FACET",
      "VSEDGES_ISOLINES",
      "VSEDGES_NONE",
      "VSFACECOLORMODE_DESA",
      "VSFACECOLORMODE_MONO",
      "VSFACECOLORMODE_REGU",
      "VSFACECOLORMODE_TINT",
      "VSFACEOPACITY",
      "VSFACESTYLE_NONE",
      "VSFACESTYLE_REAL",
      "VSFACESTYLE_WARMCOOL",
      "VSINTERSECTIONEDGES",
      "VSLIGHTINGQUALITY_FACET",
      "VSLIGHTINGQUALITY_SMOOTH",
      "VSLIGHTINGQUALITY_SMOOTHEST",
      "VSMM0",
      "VSMM1",
      "VSMM2",
      "VSOBSCUREDEDGES",
      "VSSHADOWS_FULL",
      "VSSHADOWS_GROUND",
      "VSSHADOWS_OFF",
      "VSSILHEDGES"}},
    {"ZORQbtn.xmx",
     "RCDATA_PANEL_",
     {"NAVIGATION", "ANIMATION", "LAYERS", "LIGHT", "SUN", "RENDER", "VISUALSTYLES", "EDGES",
      "TEXT", "DRAW", "MODIFY"}},
    {"HouseTools.xmx", "RCDATA_TOOL_HT_", {"WALL", "DOOR", "WINDOW", "ROOF"}},
    {"HouseTools.xmx", "RCDATA_PANEL_", {"HOUSETOOLS"}},
};

TEST(MenuImagesTest, EveryImageThatTheExampleMenuNamesIsThere) {
    const LoadedModule icons("ZORQbtn.xmx");
    const LoadedModule house("HouseTools.xmx");
    const ResourceLibrary iconLibrary(icons.directory());
    const ResourceLibrary houseLibrary(house.directory());

    std::ifstream file(std::string(PROJECT_SOURCE_ROOT) + "/examples/panels.json");
    const std::string menu{std::istreambuf_iterator<char>(file), {}};
    const std::regex image("RCDATA_[A-Z0-9_]+");
    std::size_t count = 0;
    for (std::sregex_iterator it(menu.begin(), menu.end(), image), end; it != end; ++it, ++count) {
        const std::string key = it->str();
        EXPECT_TRUE(iconLibrary.findPicture(key, 16) || houseLibrary.findPicture(key, 16)) << key;
    }
    EXPECT_GT(count, 50U);
}

INSTANTIATE_TEST_SUITE_P(Tools, ToolIconsTest, testing::ValuesIn(kToolIcons));

}  // namespace
