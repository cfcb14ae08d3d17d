#include "workbench/drawing/drawing.h"

#include "workbench/drawing/path_access.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

TEST(NewDrawing, HasWhatEveryDrawingNeeds) {
    const auto drawing = makeNewDrawing(8);
    const Database& db = drawing->db;
    EXPECT_EQ(db.serial(), 8U);
    EXPECT_EQ(getByPath(db, "layers"), Value(Value::List{"0"}));
    EXPECT_EQ(getByPath(db, "current.layer"), Value("0"));
    EXPECT_EQ(getByPath(db, "current.textStyle"), Value("Standard"));
    EXPECT_EQ(getByPath(db, "visualstyles"),
              Value(Value::List{"2D Wireframe", "Wireframe", "Hidden", "Realistic", "Conceptual"}));
    EXPECT_EQ(getByPath(db, "visualstyle.name"), Value("2D Wireframe"));
    EXPECT_EQ(getByPath(db, "viewports"), Value(Value::List{2}));
    EXPECT_EQ(getByPath(db, "layouts.Layout1.viewports"), Value(Value::List{1, 2}));
    EXPECT_EQ(getByPath(db, "sun.on"), Value(false));
    EXPECT_EQ(getByPath(db, "render.active.name"), Value("Medium"));
    EXPECT_EQ(getByPath(db, "geo"), Value());
    EXPECT_EQ(getByPath(db, "background"), Value());
}

TEST(NewDrawing, HasNothingToUndo) {
    const auto drawing = makeNewDrawing();
    EXPECT_EQ(drawing->db.undoLog().undo(), Status::NothingToUndo);
}

}  // namespace
}  // namespace workbench::drawing
