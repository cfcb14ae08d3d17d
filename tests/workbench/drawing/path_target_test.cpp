#include "workbench/drawing/path_target.h"

#include "workbench/drawing/drawing.h"
#include "workbench/drawing/path_text.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

class PathTargetTest : public testing::Test {
protected:
    PathTarget resolve(const char* path) { return resolvePath(m_drawing->db, parsePath(path)); }

    std::unique_ptr<Drawing> m_drawing = makeNewDrawing();
};

TEST_F(PathTargetTest, StepsAreUsedAsFarAsTheyNameObjects) {
    EXPECT_EQ(resolve("layers").form, PathTarget::Form::Table);
    EXPECT_EQ(resolve("layers.0.on").used, 2U);
    EXPECT_EQ(resolve("layers.0.on").form, PathTarget::Form::Object);
    EXPECT_EQ(resolve("sun.azimuth").used, 1U);
    EXPECT_EQ(resolve("render.active.name").kind, RecordKind::ActiveRenderSettings);
    EXPECT_EQ(resolve("render.presets.Draft.name").used, 3U);
    EXPECT_EQ(resolve("render.width").kind, RecordKind::RenderGlobals);
    EXPECT_EQ(resolve("layouts.Layout1.viewports.1.on").used, 4U);
}

TEST_F(PathTargetTest, WhatIsNotThereIsMissingUnderItsName) {
    const PathTarget target = resolve("views.Front.eye");
    EXPECT_EQ(target.form, PathTarget::Form::Missing);
    EXPECT_EQ(target.name, "Front");
    EXPECT_TRUE(resolve("background").isActive);
    EXPECT_EQ(resolve("entities.1").form, PathTarget::Form::Missing);
}

TEST_F(PathTargetTest, StepsThatAreNumbers) {
    EXPECT_EQ(stepNumber("12"), 12);
    EXPECT_EQ(stepNumber("0"), 0);
    EXPECT_EQ(stepNumber("-1"), -1);
    EXPECT_EQ(stepNumber("1x"), -1);
    EXPECT_EQ(stepNumber(""), -1);
}

}  // namespace
}  // namespace workbench::drawing
