#include "workbench/commands/draw_commands.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/records/entity.h"

namespace workbench {

class DrawCommandsTest : public EditorTest {
protected:
    DrawCommandsTest() : m_document(newDocument()) {}
    std::vector<drawing::Entity> entities() {
        std::vector<drawing::Entity> found;
        for (const drawing::ObjectId id : m_document.data().ids(drawing::RecordKind::Entity))
            found.push_back(*m_document.data().look<drawing::Entity>(id));
        return found;
    }

    Document& m_document;
};

TEST_F(DrawCommandsTest, LineAddsAPieceForEachFurtherPointOnTheCurrentLayer) {
    run(L"_-layer\nmake\nWalls\n\n_line\n0,0\nnonsense\n3,0\n3,4,5\n\n");
    ASSERT_EQ(entities().size(), 2U);
    EXPECT_EQ(entities()[1].points, (std::vector<drawing::Vec3>{{3, 0, 0}, {3, 4, 5}}));
    EXPECT_EQ(entities()[1].layer.id, m_document.data().find(drawing::RecordKind::Layer, "Walls"));
}

TEST_F(DrawCommandsTest, ALineThatIsCancelledKeepsThePiecesDrawn) {
    editor().type(L"line\n0,0\n1,0\n\33");
    EXPECT_EQ(entities().size(), 1U);
    EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
}

TEST_F(DrawCommandsTest, CircleIsAClosedRunOfItsRadius) {
    EXPECT_TRUE(run(L"_circle\n1,2\n5\n"));
    ASSERT_EQ(entities().size(), 1U);
    const std::vector<drawing::Vec3> points = entities()[0].points;
    EXPECT_EQ(points.size(), 65U);
    EXPECT_EQ(points.front(), points.back());
    EXPECT_EQ(points.front(), (drawing::Vec3{6, 2, 0}));
}

TEST_F(DrawCommandsTest, ACircleWithoutCentreIsCancelledAndABadRadiusAskedForAgain) {
    run(L"_circle\n\n");
    EXPECT_EQ(events().back(), "cancelled CIRCLE");
    run(L"_circle\n1,2\n-1\n");
    EXPECT_EQ(read(L"CMDNAMES"), Value("CIRCLE"));
    EXPECT_TRUE(entities().empty());
}

}  // namespace workbench
