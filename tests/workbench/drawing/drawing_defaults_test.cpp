#include "workbench/drawing/drawing_defaults.h"

#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/current.h"
#include "workbench/drawing/records/layout.h"
#include "workbench/drawing/records/render_settings.h"
#include "workbench/drawing/records/viewport.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

TEST(DrawingDefaults, ActiveRenderSettingsAreThoseOfThePresetTheyName) {
    Database db;
    addDefaults(db, RecordKind::RenderPreset);
    addDefaults(db, RecordKind::ActiveRenderSettings);
    const RenderSettings& active =
        *db.look<ActiveRenderSettings>(db.first(RecordKind::ActiveRenderSettings));
    const RenderSettings& preset =
        *db.look<RenderPreset>(db.find(RecordKind::RenderPreset, active.name));
    EXPECT_EQ(active, preset);
    EXPECT_TRUE(preset.predefined);
}

TEST(DrawingDefaults, KindsADrawingCanDoWithoutAddNothing) {
    Database db;
    for (const RecordKind kind : {RecordKind::Sun, RecordKind::View, RecordKind::GeoLocation,
                                  RecordKind::Entity, RecordKind::LayerState}) {
        addDefaults(db, kind);
        EXPECT_TRUE(db.first(kind).isNull()) << kindName(kind);
    }
}

TEST(DrawingDefaults, SettlingFillsOnlyWhatIsEmpty) {
    Database db;
    for (const RecordKind kind :
         {RecordKind::Layer, RecordKind::TextStyle, RecordKind::VisualStyle, RecordKind::Layout}) {
        addDefaults(db, kind);
    }
    const ObjectId hidden = db.find(RecordKind::VisualStyle, "Hidden");
    Viewport tile;
    tile.visualStyle = hidden;
    db.add(tile);
    db.add(Current());
    settleReferences(db);
    settleReferences(db);
    const ObjectId layout = db.first(RecordKind::Layout);
    ASSERT_EQ(viewportsOf(db, layout).size(), 1U);
    const auto* sheet = db.look<Viewport>(findViewport(db, layout, 1));
    EXPECT_TRUE(sheet->isPaper());
    EXPECT_EQ(sheet->upperRight.x, db.look<Layout>(layout)->paperWidth);
    EXPECT_EQ(sheet->visualStyle.id, db.first(RecordKind::VisualStyle));
    EXPECT_EQ(db.look<Viewport>(findViewport(db, {}, 2))->visualStyle.id, hidden);
    EXPECT_EQ(db.look<Current>(db.first(RecordKind::Current))->layout.id, layout);
}

}  // namespace
}  // namespace workbench::drawing
