#include "tests/workbench/editor/editor_fixture.h"

namespace workbench {

TEST_F(EditorTest, ANewDrawingStandsInItsTile) {
    newDocument();
    EXPECT_EQ(read(L"TILEMODE"), Value(1));
    EXPECT_EQ(read(L"CVPORT"), Value(2));
    EXPECT_EQ(read(L"BLOCKEDITOR"), Value(0));
}

TEST_F(EditorTest, TilesAndLayoutEachHaveTheirCurrentViewport) {
    newDocument();
    EXPECT_TRUE(write(L"TILEMODE", 0));
    EXPECT_EQ(read(L"CVPORT"), Value(1));
    EXPECT_TRUE(write(L"CVPORT", 2));
    EXPECT_EQ(read(L"CVPORT"), Value(2));
    EXPECT_TRUE(write(L"TILEMODE", 1));
    EXPECT_EQ(read(L"CVPORT"), Value(2));
    EXPECT_TRUE(write(L"TILEMODE", 0));
    EXPECT_EQ(read(L"CVPORT"), Value(2));
}

TEST_F(EditorTest, UndoTakesTheSpaceBackWithAnEvent) {
    newDocument();
    write(L"TILEMODE", 0);
    events();
    editor().undo();
    EXPECT_EQ(read(L"TILEMODE"), Value(1));
    EXPECT_EQ(events(), (Lines{"started U", "changed TILEMODE", "changed CVPORT", "ended U"}));
}

TEST_F(EditorTest, ARecordThatIsOpenElsewhereRefusesTheVariable) {
    Document& document = newDocument();
    VxDbObject* open = nullptr;
    document.openObjects().open(document.data().first(drawing::RecordKind::Current),
                                drawing::OpenMode::Read, open);
    EXPECT_FALSE(write(L"TILEMODE", 0));
    EXPECT_EQ(events(), (Lines{"will change TILEMODE", "unchanged TILEMODE"}));
    open->close();
    EXPECT_TRUE(write(L"TILEMODE", 0));
}

TEST_F(EditorTest, ANumberWithoutAViewportIsRefused) {
    newDocument();
    EXPECT_FALSE(write(L"CVPORT", 99));
    EXPECT_FALSE(editor().set(L"CVPORT", 1));
    EXPECT_EQ(read(L"CVPORT"), Value(2));
    write(L"TILEMODE", 0);
    EXPECT_TRUE(write(L"CVPORT", 2));
    EXPECT_TRUE(write(L"CVPORT", 1));
    events();
    EXPECT_FALSE(write(L"CVPORT", 99));
    EXPECT_EQ(read(L"CVPORT"), Value(1));
    EXPECT_EQ(events(), (Lines{"will change CVPORT", "unchanged CVPORT"}));
}

}  // namespace workbench
