#include "workbench/resources/resource_library.h"

#include <gtest/gtest.h>

namespace workbench {
namespace {

constexpr unsigned char kSmall[] = {1, 2, 3};
constexpr unsigned char kLarge[] = {4, 5, 6, 7};

constexpr ResourceString kStrings[] = {{201, "first"}, {203, ""}, {3998, "from %ls to %ls"}};
constexpr ResourcePicture kPictures[] = {
    {"#220", 16, kSmall, 3},
    {"RCDATA_A", 16, kSmall, 3},
    {"RCDATA_A", 32, kLarge, 4},
    {"RCDATA_AB", 16, kLarge, 4},
};
constexpr ResourceDirectory kDirectory{kStrings, 3, kPictures, 4};

TEST(ResourceLibraryTest, FindsFirstMiddleAndLastString) {
    const ResourceLibrary library(&kDirectory);
    EXPECT_EQ(library.findString(201), "first");
    EXPECT_EQ(library.findString(203), "");
    EXPECT_EQ(library.findString(3998), "from %ls to %ls");
}

TEST(ResourceLibraryTest, NumbersBelowBetweenAndAboveAreMissing) {
    const ResourceLibrary library(&kDirectory);
    for (const std::uint32_t id : {0U, 200U, 202U, 3997U, 3999U}) {
        EXPECT_FALSE(library.findString(id).has_value()) << id;
    }
}

TEST(ResourceLibraryTest, FindsAPictureByKeyAndSize) {
    const ResourceLibrary library(&kDirectory);

    const auto small = library.findPicture("RCDATA_A", 16);
    ASSERT_TRUE(small.has_value());
    EXPECT_EQ(small->data, kSmall);
    EXPECT_EQ(small->length, 3U);

    const auto large = library.findPicture("RCDATA_A", 32);
    ASSERT_TRUE(large.has_value());
    EXPECT_EQ(large->data, kLarge);
    EXPECT_EQ(large->length, 4U);

    EXPECT_TRUE(library.findPicture("#220", 16).has_value());
    EXPECT_TRUE(library.findPicture("RCDATA_AB", 16).has_value());
}

TEST(ResourceLibraryTest, AnotherSizeCaseOrPrefixIsMissing) {
    const ResourceLibrary library(&kDirectory);
    EXPECT_FALSE(library.findPicture("RCDATA_A", 24).has_value());
    EXPECT_FALSE(library.findPicture("RCDATA_A", 33).has_value());
    EXPECT_FALSE(library.findPicture("rcdata_a", 16).has_value());
    EXPECT_FALSE(library.findPicture("RCDATA_", 16).has_value());
    EXPECT_FALSE(library.findPicture("RCDATA_AB", 32).has_value());
    EXPECT_FALSE(library.findPicture("", 16).has_value());
    EXPECT_FALSE(library.findPicture("Z", 16).has_value());
}

TEST(ResourceLibraryTest, AModuleWithoutResourcesHasNothing) {
    const ResourceLibrary missing(nullptr);
    EXPECT_FALSE(missing.findString(201).has_value());
    EXPECT_FALSE(missing.findPicture("RCDATA_A", 16).has_value());

    constexpr ResourceDirectory kEmpty{nullptr, 0, nullptr, 0};
    const ResourceLibrary empty(&kEmpty);
    EXPECT_FALSE(empty.findString(201).has_value());
    EXPECT_FALSE(empty.findPicture("RCDATA_A", 16).has_value());
}

}  // namespace
}  // namespace workbench
