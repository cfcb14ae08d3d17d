#include "workbench/navigation/graphics_system.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/navigation/navigation_tool.h"

namespace workbench {

class GraphicsSystemTest : public EditorTest {
protected:
    GraphicsSystem& graphics() { return m_bench.navigation().graphics(); }
};

TEST_F(GraphicsSystemTest, PlainLinesHaveNoLiveViewUnlessOneIsMade) {
    newDocument();
    EXPECT_EQ(graphics().liveView(2, false), nullptr);
    VxGsView* view = graphics().liveView(2, true);
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(graphics().liveView(2, false), view);
}

TEST_F(GraphicsSystemTest, AShadedViewportHasOne) {
    newDocument();
    editor().set(L"VSCURRENT", "Realistic");
    EXPECT_NE(graphics().liveView(2, false), nullptr);
}

TEST_F(GraphicsSystemTest, WithoutADocumentOrSuchAViewportThereIsNone) {
    EXPECT_EQ(graphics().liveView(2, true), nullptr);
    newDocument();
    EXPECT_EQ(graphics().liveView(99, true), nullptr);
}

TEST_F(GraphicsSystemTest, ALiveViewFollowsItsViewportAndOutlivesItsDrawing) {
    Document& document = newDocument();
    VxGsView* view = graphics().liveView(2, true);
    EXPECT_FALSE(view->isPerspective());
    editor().set(L"PERSPECTIVE", 1);
    EXPECT_TRUE(view->isPerspective());
    editor().documents().close(document);
    EXPECT_FALSE(view->isPerspective());
}

TEST_F(GraphicsSystemTest, ATemporaryViewKeepsWhatWasCopied) {
    newDocument();
    editor().set(L"PERSPECTIVE", 1);
    VxGsView* view = graphics().classFactory()->createView({2, {}});
    EXPECT_FALSE(view->isPerspective());
    EXPECT_TRUE(graphics().copyParameters(2, view));
    editor().set(L"PERSPECTIVE", 0);
    EXPECT_TRUE(view->isPerspective());
    EXPECT_FALSE(graphics().copyParameters(99, view));
    graphics().deleteView(view);
}

TEST_F(GraphicsSystemTest, TemporaryViewsAreCountedUntilTheyAreDeleted) {
    VxGsView* view = graphics().createView({});
    EXPECT_EQ(graphics().temporaryCount(), 1U);
    newDocument();
    graphics().deleteView(graphics().liveView(2, true));
    EXPECT_EQ(graphics().temporaryCount(), 1U);
    graphics().deleteView(view);
    EXPECT_EQ(graphics().temporaryCount(), 0U);
    graphics().deleteView(nullptr);
}

TEST_F(GraphicsSystemTest, FaultsGiveNoFactoryAndNoView) {
    m_bench.faults().fail("VxGsManager::classFactory");
    m_bench.faults().fail("VxGsClassFactory::createView");
    EXPECT_EQ(graphics().classFactory(), nullptr);
    EXPECT_EQ(graphics().createView({}), nullptr);
}

}  // namespace workbench
