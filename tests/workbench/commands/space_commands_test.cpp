#include "workbench/commands/space_commands.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/viewport.h"

namespace workbench {

class SpaceCommandsTest : public EditorTest {
protected:
    SpaceCommandsTest() : m_document(newDocument()) {}
    void addLayoutViewport(int number, bool on) {
        drawing::Viewport viewport;
        viewport.layout = m_document.data().first(drawing::RecordKind::Layout);
        viewport.number = number;
        viewport.on = on;
        m_document.data().add(viewport);
    }

    void switchOffFirstViewport() {
        drawing::Database& data = m_document.data();
        const drawing::ObjectId layout = data.first(drawing::RecordKind::Layout);
        drawing::Writing<drawing::Viewport>(data, drawing::findViewport(data, layout, 2))->on =
            false;
    }

    Document& m_document;
};

TEST_F(SpaceCommandsTest, LayoutSetGoesToTheSheetAndModelBack) {
    EXPECT_TRUE(run(L"_-layout\nset\nLayout1\n"));
    EXPECT_EQ(read(L"TILEMODE"), Value(0));
    EXPECT_EQ(read(L"CVPORT"), Value(1));
    EXPECT_TRUE(run(L"_model\n"));
    EXPECT_EQ(read(L"TILEMODE"), Value(1));
    EXPECT_EQ(read(L"CVPORT"), Value(2));
    EXPECT_TRUE(run(L"_-layout\ns\nlayout1\n"));
    EXPECT_TRUE(run(L"_-layout\nset\nmodel\n"));
    EXPECT_EQ(read(L"TILEMODE"), Value(1));
}

TEST_F(SpaceCommandsTest, AnUnknownLayoutIsAskedForAgain) {
    run(L"_-layout\nset\nNowhere\n");
    EXPECT_EQ(read(L"CMDNAMES"), Value("-LAYOUT"));
    editor().type(L"\n");
    EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
    EXPECT_EQ(read(L"TILEMODE"), Value(1));
}

TEST_F(SpaceCommandsTest, MspaceWorksThroughTheFirstViewportThatIsOn) {
    switchOffFirstViewport();
    addLayoutViewport(3, true);
    editor().set(L"TILEMODE", 0);
    EXPECT_TRUE(run(L"_mspace\n"));
    EXPECT_EQ(read(L"CVPORT"), Value(3));
    EXPECT_TRUE(run(L"_pspace\n"));
    EXPECT_EQ(read(L"CVPORT"), Value(1));
}

TEST_F(SpaceCommandsTest, WithoutALayoutOnShowOrAViewportOnItTheyFail) {
    EXPECT_FALSE(run(L"_mspace\n"));
    EXPECT_FALSE(run(L"_pspace\n"));
    editor().set(L"TILEMODE", 0);
    switchOffFirstViewport();
    EXPECT_FALSE(run(L"_mspace\n"));
}

}  // namespace workbench
