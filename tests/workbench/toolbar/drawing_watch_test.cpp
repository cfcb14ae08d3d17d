#include "workbench/toolbar/drawing_watch.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/path_access.h"

namespace workbench {

namespace {

class DrawingWatchTest : public EditorTest {
protected:
    bool tookNotice() { return std::exchange(m_changes, 0) > 0; }
    static void addLayer(Document& document, const std::string& name) {
        drawing::setByPath(document.data(), "layers." + name, Value::Table{});
    }

    int m_changes = 0;
    DrawingWatch m_watch{editor(), [this] { ++m_changes; }};
};

}  // namespace

TEST_F(DrawingWatchTest, ObjectsAndVariablesOfTheCurrentDrawingAreWatched) {
    Document& document = newDocument();
    EXPECT_TRUE(tookNotice());
    addLayer(document, "Walls");
    EXPECT_TRUE(tookNotice());
    drawing::setByPath(document.data(), "layers.Walls.frozen", true);
    EXPECT_TRUE(tookNotice());
    drawing::setByPath(document.data(), "layers.Walls", Value());
    EXPECT_TRUE(tookNotice());
    write(L"CECOLOR", "Red");
    EXPECT_TRUE(tookNotice());
    editor().undo();
    EXPECT_TRUE(tookNotice());
    EXPECT_FALSE(tookNotice());
}

TEST_F(DrawingWatchTest, AnotherDrawingIsWatchedOnceItIsCurrent) {
    Document& first = newDocument(L"A");
    Document& second = newDocument(L"B");
    tookNotice();
    addLayer(first, "Walls");
    EXPECT_FALSE(tookNotice());
    addLayer(second, "Walls");
    EXPECT_TRUE(tookNotice());
    editor().documents().activate(first);
    EXPECT_TRUE(tookNotice());
    addLayer(first, "Pond");
    EXPECT_TRUE(tookNotice());
}

TEST_F(DrawingWatchTest, TheLastDrawingMayGo) {
    editor().documents().close(newDocument());
    EXPECT_TRUE(tookNotice());
    addLayer(newDocument(L"B"), "Walls");
    EXPECT_TRUE(tookNotice());
}

}  // namespace workbench
