#include "workbench/drawing/records/render_settings.h"

#include "workbench/drawing/database/database.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

TEST(RenderSettingsRecord, PresetAndActiveSettingsCompareAsSettings) {
    RenderPreset preset;
    ActiveRenderSettings active;
    preset.name = "Draft";
    static_cast<RenderSettings&>(active) = preset;
    const RenderSettings& left = preset;
    EXPECT_EQ(left, static_cast<const RenderSettings&>(active));
    active.samplingMax = 3;
    EXPECT_FALSE(left == static_cast<const RenderSettings&>(active));
}

TEST(RenderSettingsRecord, SamplingHasNineSteps) {
    const Database db;
    Record<ActiveRenderSettings> active;
    active.setProperty("samplingMax", -3, db);
    active.setProperty("samplingMax", 5, db);
    EXPECT_THROW(active.setProperty("samplingMax", 6, db), ValueError);
    EXPECT_THROW(active.setProperty("samplingMin", -4, db), ValueError);
}

TEST(RenderSettingsRecord, PictureHasASize) {
    const Database db;
    Record<RenderGlobals> globals;
    EXPECT_THROW(globals.setProperty("width", 0, db), ValueError);
    EXPECT_EQ(globals.data().width, 640);
}

}  // namespace
}  // namespace workbench::drawing
