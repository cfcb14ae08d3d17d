#include "workbench/drawing/drawing_reader.h"

#include "workbench/base/input_error.h"
#include "workbench/drawing/path_access.h"

#include <gtest/gtest.h>

#include <string>

namespace workbench::drawing {
namespace {

/// The complaint about a text, or "" if there is none.
std::string complaint(const std::string& text) {
    try {
        parseDrawing(text, "d.json");
        return "";
    } catch (const InputError& error) {
        return error.what();
    }
}

/// The complaint about a drawing with these sections, all on line 1.
std::string complaintAbout(const std::string& sections) {
    return complaint("{\"format\": \"drawing 1\", " + sections + "}");
}

Value read(const std::string& sections, const char* path) {
    const auto drawing = parseDrawing("{\"format\": \"drawing 1\", " + sections + "}", "d.json");
    return getByPath(drawing->db, path);
}

TEST(DrawingReader, WhatIsLeftOutIsAsInANewDrawing) {
    const auto drawing = parseDrawing("{\"format\": \"drawing 1\"}", "d.json", 5);
    EXPECT_EQ(drawing->db.serial(), 5U);
    EXPECT_EQ(getByPath(drawing->db, "layers"), Value(Value::List{"0"}));
    EXPECT_EQ(getByPath(drawing->db, "sun"), Value());
    EXPECT_FALSE(drawing->db.undoLog().canUndo());
}

TEST(DrawingReader, SectionsAreReadInTheOrderOfTheirReferences) {
    EXPECT_EQ(read(R"("entities": [{"type": "line", "layer": "W", "points": [[0,0,0],[1,0,0]]}],
                      "layers": [{"name": "0"}, {"name": "W"}])",
                   "entities.count"),
              Value(1));
}

TEST(DrawingReader, VariablesAreCarriedUnderNamesInCapitals) {
    const auto drawing = parseDrawing(
        R"({"format": "drawing 1", "variables": {"lunits": 2, "TEXTSIZE": 2.5}})", "d.json");
    EXPECT_EQ(drawing->variables.at("LUNITS"), Value(2));
    EXPECT_EQ(drawing->variables.at("TEXTSIZE"), Value(2.5));
}

TEST(DrawingReader, LayoutsGetTheirSheetAndTilesAVisualStyle) {
    const std::string sections = R"("layouts": [{"name": "A"}, {"name": "B"}])";
    EXPECT_EQ(read(sections, "layouts.B.viewports"), Value(Value::List{1}));
    EXPECT_EQ(read(sections, "viewports.2.visualStyle"), Value("2D Wireframe"));
    EXPECT_EQ(read(sections, "current.layout"), Value("A"));
}

TEST(DrawingReader, ComplaintNamesFileLineAndPlace) {
    EXPECT_EQ(complaint("{\"format\": \"drawing 1\",\n\"layers\": [{\"name\": \"0\"},\n"
                        "{\"name\": \"W\",\n\"on\": 3}]}"),
              "d.json:4: /layers/1/on: expected true or false, got 3");
}

struct Bad {
    const char* sections;
    const char* reason;
};

class BadDrawing : public testing::TestWithParam<Bad> {};

TEST_P(BadDrawing, GivesOneClearComplaint) {
    EXPECT_EQ(complaintAbout(GetParam().sections), GetParam().reason);
}

INSTANTIATE_TEST_SUITE_P(
    All, BadDrawing,
    testing::Values(
        Bad{R"("walls": [])", "d.json:1: /walls: a drawing has no section \"walls\""},
        Bad{R"("layers": {})", "d.json:1: /layers: expected an array"},
        Bad{R"("layers": [])", "d.json:1: a drawing needs the layer \"0\""},
        Bad{R"("layers": [{"name": "0", "colur": 1}])",
            "d.json:1: /layers/0/colur: a layer has no \"colur\""},
        Bad{R"("layers": [{"on": true}])", "d.json:1: /layers/0: a layer needs a \"name\""},
        Bad{R"("layers": [{"name": "a"}, {"name": "A"}])",
            "d.json:1: /layers/1: there is another layer of this name"},
        Bad{R"("layers": [{"name": "0", "transparency": 91}])",
            "d.json:1: /layers/0/transparency: expected a number from 0 to 90, got 91"},
        Bad{R"("entities": [{"type": "line", "points": [[0,0,0],[1,0,0]]}])",
            "d.json:1: /entities/0: an entity needs a layer"},
        Bad{R"("entities": [{"type": "face", "layer": "0", "points": [[0,0,0]]}])",
            "d.json:1: /entities/0: a face needs at least 3 points, got 1"},
        Bad{R"("entities": [{"type": "box", "layer": "X"}])",
            "d.json:1: /entities/0/layer: there is no layer named \"X\""},
        Bad{R"("viewports": [{"number": 1}])",
            "d.json:1: /viewports/0: a tile of model space is numbered from 2"},
        Bad{R"("viewports": [{"number": 2}, {"number": 2}])",
            "d.json:1: /viewports/1: there is another viewport of number 2 in the same space"},
        Bad{R"("viewports": [])", "d.json:1: there is no tile of number 2"},
        Bad{R"("layouts": [{"name": "A", "currentViewport": 4}])",
            "d.json:1: the layout \"A\" has no viewport of number 4"},
        Bad{R"("layerFilters": {"current": "X"})",
            "d.json:1: /layerFilters: there is no layer filter named \"X\""},
        Bad{R"("layerFilters": {"root": {"name": "All", "kind": "group"}})",
            "d.json:1: /layerFilters: the root of the filters is of kind \"all\""},
        Bad{R"("suns": [{"name": "S", "date": "2026-02-30T00:00"}])",
            "d.json:1: /suns/0/date: expected a date and time as 2026-06-21T15:00:00, got "
            "\"2026-02-30T00:00\""},
        Bad{R"("variables": {"CLAYER": "0"})",
            "d.json:1: /variables/CLAYER: CLAYER is kept at /current/layer"},
        Bad{R"("variables": {"LUNITS": {}})",
            "d.json:1: /variables/LUNITS: expected a number, a text, true, false or a point"},
        Bad{R"("variables": {"LUNITS": 1, "lunits": 2})",
            "d.json:1: /variables/lunits: the variable LUNITS stands twice"}));

TEST(DrawingReader, AnotherKindOfFileIsRefused) {
    EXPECT_EQ(complaint("{}"), "d.json:1: expected \"format\": \"drawing 1\"");
    EXPECT_EQ(complaint("{\"format\": 2}"), "d.json:1: /format: expected \"drawing 1\", got 2");
    EXPECT_EQ(complaint("[]"), "d.json:1: expected an object");
    EXPECT_NE(complaint("{\"format\""), "");
    EXPECT_THROW(readDrawing("no/such/file.json"), InputError);
}

}  // namespace
}  // namespace workbench::drawing
