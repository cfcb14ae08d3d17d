#include "workbench/drawing/records/layer_state.h"

#include "workbench/drawing/database/database.h"
#include "workbench/drawing/records/layer.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

TEST(LayerStateRecord, SavedLayersComeBackAsTheyWereWritten) {
    Database db;
    Layer layer;
    layer.name = "Walls";
    SavedLayer saved;
    saved.layer = db.add(layer).id;
    saved.colour = Colour::byIndex(4);
    saved.frozenInViewport = true;
    SavedLayer again;
    fromValue(toValue(saved, db), again, db);
    EXPECT_EQ(again, saved);
    Writing<Layer>(db, saved.layer).erase();
    EXPECT_EQ(toValue(saved, db), Value());
}

TEST(LayerStateRecord, SavedLayerNeedsItsLayerAndKnownMembers) {
    const Database db;
    SavedLayer saved;
    EXPECT_THROW(fromValue(Value::Table{{"on", true}}, saved, db), ValueError);
    EXPECT_THROW(fromValue(Value::Table{{"size", 1}}, saved, db), ValueError);
    EXPECT_THROW(fromValue(Value::Table{{"lineweight", 300}}, saved, db), ValueError);
}

}  // namespace
}  // namespace workbench::drawing
