#include "workbench/drawing/path_text.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

using Steps = std::vector<std::string>;

TEST(PathText, WordsAndBracketsAreSteps) {
    EXPECT_EQ(parsePath("layers.Walls.on"), (Steps{"layers", "Walls", "on"}));
    EXPECT_EQ(parsePath("layers[\"A.B\"].on"), (Steps{"layers", "A.B", "on"}));
    EXPECT_EQ(parsePath("layers['A]B'][\"x y\"]"), (Steps{"layers", "A]B", "x y"}));
    EXPECT_EQ(parsePath("viewports[2].eye[1]"), (Steps{"viewports", "2", "eye", "1"}));
    EXPECT_EQ(parsePath("layers.South Wall.on"), (Steps{"layers", "South Wall", "on"}));
}

TEST(PathText, WhatIsNoPathIsRefused) {
    for (const char* text :
         {"", ".", "a.", "a..b", ".a", "a[", "a[]", "a[\"b]", "a[1]b", "a[\"\"]"}) {
        EXPECT_THROW(parsePath(text), PathError) << text;
    }
}

}  // namespace
}  // namespace workbench::drawing
