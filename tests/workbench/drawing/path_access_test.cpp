#include "workbench/drawing/path_access.h"

#include "workbench/drawing/drawing.h"
#include "workbench/drawing/drawing_writer.h"
#include "workbench/drawing/path_text.h"
#include "workbench/drawing/records/layer.h"

#include <gtest/gtest.h>

#include <string>

namespace workbench::drawing {
namespace {

class PathAccessTest : public testing::Test {
protected:
    PathAccessTest() {
        set("layers.Walls", Value::Table{{"colour", 3}, {"locked", true}});
        set("layers[\"A.B\"]", Value::Table{});
        m_drawing->db.undoLog().clear();
    }

    Value get(const char* path) { return getByPath(m_drawing->db, path); }
    void set(const char* path, const Value& value) { setByPath(m_drawing->db, path, value); }

    std::string complaintOfGet(const char* path) {
        try {
            return "reads " + get(path).describe();
        } catch (const PathError& error) {
            return error.what();
        }
    }

    /// The complaint, after which the drawing has to be as it was.
    std::string complaintOfSet(const char* path, const Value& value) {
        const Value before = drawingValue(*m_drawing);
        std::string complaint = "no complaint";
        try {
            set(path, value);
        } catch (const PathError& error) {
            complaint = error.what();
        }
        EXPECT_EQ(drawingValue(*m_drawing), before) << path;
        EXPECT_FALSE(m_drawing->db.undoLog().canUndo()) << path;
        return complaint;
    }

    std::unique_ptr<Drawing> m_drawing = makeNewDrawing();
};

TEST_F(PathAccessTest, TablesAreListsOfNames) {
    EXPECT_EQ(get("layers"), Value(Value::List{"0", "Walls", "A.B"}));
    EXPECT_EQ(get("layers.count"), Value(3));
    EXPECT_EQ(get("layers[2]"), Value());
    EXPECT_EQ(get("render.presets.count"), Value(5));
    EXPECT_EQ(get("entities.count"), Value(0));
}

TEST_F(PathAccessTest, PropertiesAreFoundWhateverTheirCase) {
    EXPECT_EQ(get("layers.Walls.locked"), Value(true));
    EXPECT_EQ(get("LAYERS.walls.Locked"), Value(true));
    EXPECT_EQ(get("layers[\"A.B\"].on"), Value(true));
    EXPECT_EQ(get("textStyles.Standard.height"), Value(0.0));
}

TEST_F(PathAccessTest, WholeObjectIsATable) {
    const Value walls = get("layers.Walls");
    ASSERT_NE(walls.member("colour"), nullptr);
    EXPECT_EQ(*walls.member("colour"), Value(3));
}

TEST_F(PathAccessTest, MissingObjectReadsAsNil) {
    EXPECT_EQ(get("layers.Wals"), Value());
    EXPECT_EQ(get("geo"), Value());
    EXPECT_EQ(get("viewports.7"), Value());
}

TEST_F(PathAccessTest, PathThatLeadsNowhereSaysWhereItStopped) {
    EXPECT_EQ(complaintOfGet("layers.Wals.on"),
              "path \"layers.Wals.on\": there is no layer \"Wals\" (led as far as \"layers\")");
    EXPECT_EQ(complaintOfGet("layers.Walls.frozn"),
              "path \"layers.Walls.frozn\": a layer has no \"frozn\" (led as far as "
              "\"layers.Walls\")");
    EXPECT_EQ(complaintOfGet("walls.x"), "path \"walls.x\": a drawing has no \"walls\"");
    EXPECT_EQ(complaintOfGet("geo.latitude"), "path \"geo.latitude\": there is no location");
    EXPECT_EQ(complaintOfGet("viewports.2.eye.w"),
              "path \"viewports.2.eye.w\": a list has no \"w\" (led as far as "
              "\"viewports.2.eye\")");
    EXPECT_EQ(complaintOfGet("viewports.x"),
              "path \"viewports.x\": expected the number of a viewport or \"current\", got \"x\" "
              "(led as far as \"viewports\")");
}

TEST_F(PathAccessTest, SettingGoesThroughAnOpeningWithItsNotifications) {
    class Counter final : public DatabaseReactor {
    public:
        void objectOpenedForModify(const DbObject& /*object*/) override { told += 'o'; }
        void objectModified(const DbObject& /*object*/) override { told += 'm'; }
        std::string told;
    } counter;
    m_drawing->db.addReactor(&counter);
    set("layers.Walls.frozen", true);
    EXPECT_EQ(counter.told, "om");
    EXPECT_EQ(get("layers.Walls.frozen"), Value(true));
    m_drawing->db.removeReactor(&counter);
    EXPECT_EQ(m_drawing->db.undoLog().undo(), Status::Ok);
    EXPECT_EQ(get("layers.Walls.frozen"), Value(false));
}

TEST_F(PathAccessTest, PartOfAPointIsReadAndChanged) {
    set("viewports.current.eye", Value::List{1, 2, 3});
    set("viewports.2.eye.y", 7);
    set("viewports.2.eye[3]", 9.5);
    EXPECT_EQ(get("viewports.2.eye"), Value(Value::List{1, 7, 9.5}));
    EXPECT_EQ(get("viewports.2.eye.z"), Value(9.5));
}

TEST_F(PathAccessTest, ViewThatMovesIsNoNamedOneAnyMore) {
    set("views.Garden", Value::Table{});
    set("viewports.2.appliedView", "Garden");
    set("viewports.2.locked", true);
    EXPECT_EQ(get("viewports.2.appliedView"), Value("Garden"));
    set("viewports.2.eye.x", 12);
    EXPECT_EQ(get("viewports.2.appliedView"), Value());
    EXPECT_EQ(m_drawing->db.undoLog().undo(), Status::Ok);
    EXPECT_EQ(get("viewports.2.appliedView"), Value("Garden"));
}

TEST_F(PathAccessTest, SunIsTheOneOfTheActiveViewport) {
    set("sun.hour", 7);
    EXPECT_EQ(get("sun.date"), Value("2026-06-21T07:00:00"));
    set("suns.Second", Value::Table{{"azimuth", 10}});
    set("viewports.2.sun", "Second");
    EXPECT_EQ(get("sun.azimuth"), Value(10));
}

TEST_F(PathAccessTest, WhatIsShownIsAddedWhenItIsMissing) {
    set("background.type", 11);
    EXPECT_EQ(get("background.type"), Value(11));
    EXPECT_EQ(get("viewports.2.background"), Value("background"));
    set("geo.latitude", 48.2);
    EXPECT_EQ(get("geo.latitude"), Value(48.2));
    EXPECT_EQ(m_drawing->db.undoLog().undo(), Status::Ok);
    EXPECT_EQ(get("geo"), Value());
    EXPECT_EQ(m_drawing->db.undoLog().undo(), Status::Ok);
    EXPECT_EQ(get("background"), Value());
}

TEST_F(PathAccessTest, NilErasesAndATableAdds) {
    set("layers.Walls", Value());
    EXPECT_EQ(get("layers.Walls"), Value());
    set("layers.Walls", Value());
    set("layers.Walls", Value::Table{{"on", false}});
    EXPECT_EQ(get("layers.Walls.on"), Value(false));
    const Value corner = Value::List{0, 0, 0};
    set("entities.new", Value::Table{{"type", "box"},
                                     {"layer", "Walls"},
                                     {"points", Value::List(1, corner)},
                                     {"size", Value::List{1, 1, 1}}});
    ASSERT_EQ(get("entities.count"), Value(1));
    const std::string number = get("entities").asList()[0].describe();
    EXPECT_EQ(get(("entities." + number + ".layer").c_str()), Value("Walls"));
}

TEST_F(PathAccessTest, RenamingKeepsReferences) {
    set("current.layer", "Walls");
    set("layers.Walls.name", "Outer Walls");
    EXPECT_EQ(get("current.layer"), Value("Outer Walls"));
}

TEST_F(PathAccessTest, ValueThatDoesNotFitChangesNothing) {
    EXPECT_EQ(complaintOfSet("layers.Walls.on", "yes"),
              "path \"layers.Walls.on\": expected true or false, got \"yes\" (led as far as "
              "\"layers.Walls.on\")");
    EXPECT_NE(complaintOfSet("layers.Walls", Value::Table{{"on", false}, {"x", 1}}),
              "no complaint");
    EXPECT_NE(complaintOfSet("layers.Walls.name", "A.B"), "no complaint");
    EXPECT_NE(complaintOfSet("layers.New", 3), "no complaint");
    EXPECT_NE(complaintOfSet("layers.New.on", true), "no complaint");
    EXPECT_NE(complaintOfSet("layers", Value::List{"a"}), "no complaint");
    EXPECT_NE(complaintOfSet("layers.0", Value()), "no complaint");
    EXPECT_NE(complaintOfSet("current", Value()), "no complaint");
    EXPECT_NE(complaintOfSet("geo.latitude", 91), "no complaint");
    EXPECT_NE(complaintOfSet("sun.colour", 1), "no complaint");
    EXPECT_NE(complaintOfSet("entities.new", Value::Table{{"type", "box"}, {"layer", "0"}}),
              "no complaint");
}

TEST_F(PathAccessTest, ObjectOpenElsewhereIsNotChanged) {
    const Reading<Layer> reader(m_drawing->db, m_drawing->db.find(RecordKind::Layer, "Walls"));
    EXPECT_EQ(get("layers.Walls.on"), Value(true));
    EXPECT_EQ(complaintOfSet("layers.Walls.on", false),
              "path \"layers.Walls.on\": it can't be changed now: wasOpenForRead (led as far as "
              "\"layers.Walls\")");
}

}  // namespace
}  // namespace workbench::drawing
