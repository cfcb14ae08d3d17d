#include "workbench/drawing/filter_paths.h"

#include "workbench/drawing/drawing.h"
#include "workbench/drawing/path_access.h"
#include "workbench/drawing/path_text.h"

#include <gtest/gtest.h>

namespace workbench::drawing {
namespace {

class FilterPathsTest : public testing::Test {
protected:
    FilterPathsTest() {
        set("layers.A-Wall", Value::Table{});
        set("layers.B-Tree", Value::Table{{"locked", true}});
        set("filters.Walls", Value::Table{{"expression", "NAME==\"A-*\""}});
        set("filters.Green",
            Value::Table{
                {"kind", "group"}, {"layers", Value::List{"B-Tree"}}, {"parent", "Walls"}});
    }

    Value get(const char* path) { return getByPath(m_drawing->db, path); }
    void set(const char* path, const Value& value) { setByPath(m_drawing->db, path, value); }

    std::unique_ptr<Drawing> m_drawing = makeNewDrawing();
};

TEST_F(FilterPathsTest, NamesAreListedParentsFirst) {
    EXPECT_EQ(get("filters"), Value(Value::List{"All", "All Used Layers", "Unreconciled New Layers",
                                                "Viewport Overrides", "Walls", "Green"}));
    EXPECT_EQ(get("filters.count"), Value(6));
    EXPECT_EQ(get("filters.current"), Value("All"));
    EXPECT_EQ(get("filters.Nobody"), Value());
}

TEST_F(FilterPathsTest, FilterTellsWhatItShowsAndWhereItStands) {
    EXPECT_EQ(get("filters.Walls.shows"), Value(Value::List{"A-Wall"}));
    EXPECT_EQ(get("filters.Green.parent"), Value("Walls"));
    EXPECT_EQ(get("filters.Walls.children"), Value(Value::List{"Green"}));
    EXPECT_EQ(get("filters.All.parent"), Value());
}

TEST_F(FilterPathsTest, RenamingTheCurrentFilterKeepsItCurrent) {
    set("filters.current", "Green");
    set("filters.Green.name", "Trees");
    EXPECT_EQ(get("filters.current"), Value("Trees"));
}

TEST_F(FilterPathsTest, DeletingABranchMakesTheRootCurrent) {
    set("filters.current", "Green");
    set("filters.Walls", Value());
    EXPECT_EQ(get("filters"), Value(Value::List{"All", "All Used Layers", "Unreconciled New Layers",
                                                "Viewport Overrides"}));
    EXPECT_EQ(get("filters.current"), Value("All"));
    m_drawing->db.undoLog().undo();
    EXPECT_EQ(get("filters.current"), Value("Green"));
}

TEST_F(FilterPathsTest, WrongChangesAreRefused) {
    EXPECT_THROW(set("filters.current", "Nobody"), PathError);
    EXPECT_THROW(set("filters.Walls.name", "GREEN"), PathError);
    EXPECT_THROW(set("filters.Walls.expression", "NAME=A"), PathError);
    EXPECT_THROW(set("filters.Green.layers", Value::List{"C"}), PathError);
    EXPECT_THROW(set("filters.All", Value()), PathError);
    EXPECT_THROW(set("filters.New", Value::Table{{"parent", "Nobody"}}), PathError);
    EXPECT_THROW(set("filters", Value()), PathError);
    EXPECT_THROW(get("filters.Walls.colour"), PathError);
    EXPECT_THROW(get("filters.Nobody.name"), PathError);
    EXPECT_EQ(get("filters.count"), Value(6));
}

}  // namespace
}  // namespace workbench::drawing
