#include "workbench/drawing/drawing_writer.h"

#include "tests/support/temporary_folder.h"
#include "workbench/base/input_error.h"
#include "workbench/drawing/drawing_reader.h"
#include "workbench/drawing/path_access.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace workbench::drawing {
namespace {

const std::filesystem::path kHouse =
    std::filesystem::path(PROJECT_SOURCE_ROOT) / "examples" / "house.json";

TEST(DrawingWriter, SavingWhatWasReadGivesAnEqualDrawing) {
    const auto house = readDrawing(kHouse);
    const auto again = parseDrawing(drawingText(*house), "again", 2);
    EXPECT_EQ(drawingValue(*again), drawingValue(*house));
    EXPECT_EQ(drawingText(*again), drawingText(*house));
}

TEST(DrawingWriter, NewDrawingComesBackEqual) {
    const auto fresh = makeNewDrawing();
    EXPECT_EQ(drawingValue(*parseDrawing(drawingText(*fresh), "again")), drawingValue(*fresh));
}

TEST(DrawingWriter, EveryChangeMakesADifference) {
    const auto house = readDrawing(kHouse);
    const Value before = drawingValue(*house);
    setByPath(house->db, "layers.Roof.locked", true);
    EXPECT_FALSE(drawingValue(*house) == before);
    house->db.undoLog().undo();
    EXPECT_EQ(drawingValue(*house), before);
}

TEST(DrawingWriter, ErasedObjectsAndReferencesToThemAreNotSaved) {
    const auto drawing = makeNewDrawing();
    setByPath(drawing->db, "layers.Gone", Value::Table{});
    setByPath(drawing->db, "filters.G",
              Value::Table{{"kind", "group"}, {"layers", Value::List{"Gone", "0"}}});
    setByPath(drawing->db, "layers.Gone", Value());
    const auto again = parseDrawing(drawingText(*drawing), "again");
    EXPECT_EQ(getByPath(again->db, "layers"), Value(Value::List{"0"}));
    EXPECT_EQ(getByPath(again->db, "filters.G.layers"), Value(Value::List{"0"}));
}

TEST(DrawingWriter, FileTakesTheOldOnesPlace) {
    const support::TemporaryFolder folder;
    const auto file = folder.path / "d.json";
    auto drawing = makeNewDrawing();
    saveDrawing(*drawing, file);
    setByPath(drawing->db, "layers.Roof", Value::Table{});
    saveDrawing(*drawing, file);
    EXPECT_EQ(drawingValue(*readDrawing(file)), drawingValue(*drawing));
    EXPECT_FALSE(folder.has("d.json.new"));
}

TEST(DrawingWriter, PlaceThatCannotBeWrittenIsReported) {
    const support::TemporaryFolder folder;
    EXPECT_THROW(saveDrawing(*makeNewDrawing(), folder.path / "none" / "d.json"), InputError);
    std::filesystem::create_directories(folder.path / "taken" / "inside");
    EXPECT_THROW(saveDrawing(*makeNewDrawing(), folder.path / "taken"), InputError);
    EXPECT_FALSE(folder.has("taken.new"));
}

}  // namespace
}  // namespace workbench::drawing
