#include "workbench/navigation/graphics_system.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/view.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/navigation/navigation_tool.h"

namespace workbench {

class GraphicsSystemTest : public EditorTest {
protected:
    /// The number of a new drawing's only tile.
    static constexpr int kTile = 2;

    GraphicsSystem& graphics() { return m_bench.navigation().graphics(); }
    drawing::Database& data() { return editor().documents().current()->data(); }
    drawing::ObjectId tile() { return drawing::activeViewport(data()); }
    const drawing::Viewport& viewport() { return *data().look<drawing::Viewport>(tile()); }
    const drawing::ViewParameters& shown() { return viewport().view; }
    /// Looks from (x, 0, 10) at the origin.
    static void lookFrom(VxGsView& view, double x) {
        view.setView({x, 0, 10}, {0, 0, 0}, {0, 1, 0}, 4, 2, true);
    }
    VxGsView& temporary() {
        VxGsView* view = graphics().createView({kTile, {}});
        graphics().copyParameters(kTile, view);
        return *view;
    }
    std::size_t told() { return events().size(); }
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

TEST_F(GraphicsSystemTest, ALiveViewWritesThroughToItsViewport) {
    newDocument();
    VxGsView& view = *graphics().liveView(kTile, true);
    view.setView({1, 2, 3}, {4, 5, 6}, {0, 0, 1}, 8, 7, true);
    EXPECT_EQ(shown().eye, (drawing::Vec3{1, 2, 3}));
    EXPECT_EQ(shown().target, (drawing::Vec3{4, 5, 6}));
    EXPECT_EQ(shown().up, (drawing::Vec3{0, 0, 1}));
    EXPECT_EQ(shown().width, 8);
    EXPECT_EQ(shown().height, 7);
    EXPECT_TRUE(shown().perspective);
    EXPECT_EQ(view.eyePosition().z, 3);
    EXPECT_EQ(view.target().x, 4);
    EXPECT_EQ(view.upVector().z, 1);
    EXPECT_EQ(view.fieldWidth(), 8);
    EXPECT_EQ(view.fieldHeight(), 7);
}

TEST_F(GraphicsSystemTest, ATemporaryViewReachesTheViewportWhenItIsApplied) {
    newDocument();
    VxGsView& view = temporary();
    lookFrom(view, 5);
    EXPECT_NE(shown().eye.x, 5);
    EXPECT_TRUE(graphics().applyParameters(kTile, &view));
    EXPECT_EQ(shown().eye.x, 5);
    EXPECT_FALSE(graphics().applyParameters(99, &view));
    EXPECT_FALSE(graphics().applyParameters(kTile, nullptr));
}

TEST_F(GraphicsSystemTest, TheViewportKeepsItsLensWhenAViewIsApplied) {
    newDocument();
    VxGsView& view = temporary();
    EXPECT_TRUE(graphics().setLens(kTile, 24));
    lookFrom(view, 5);
    graphics().applyParameters(kTile, &view);
    EXPECT_EQ(graphics().lens(kTile), 24);
}

TEST_F(GraphicsSystemTest, OnlyAViewportHasALensAndItIsAboveZero) {
    EXPECT_FALSE(graphics().lens(kTile).has_value());
    newDocument();
    EXPECT_EQ(graphics().lens(kTile), 50);
    EXPECT_FALSE(graphics().lens(99).has_value());
    EXPECT_FALSE(graphics().setLens(99, 24));
    EXPECT_FALSE(graphics().setLens(kTile, 0));
    EXPECT_FALSE(graphics().setLens(kTile, -1));
    EXPECT_EQ(graphics().lens(kTile), 50);
}

TEST_F(GraphicsSystemTest, ApplyingTellsOfAChangedViewOnceAndOfNoOther) {
    newDocument();
    VxGsView& view = *graphics().liveView(kTile, true);
    events();
    lookFrom(view, 5);
    graphics().setLens(kTile, 24);
    EXPECT_EQ(told(), 0U);
    graphics().applyParameters(kTile, &view);
    EXPECT_EQ(told(), 1U);
    graphics().applyParameters(kTile, &view);
    EXPECT_EQ(told(), 0U);
}

TEST_F(GraphicsSystemTest, AViewThatIsOpenElsewhereStaysAsItIs) {
    newDocument();
    VxGsView& view = temporary();
    lookFrom(view, 5);
    const drawing::Reading<drawing::Viewport> reading(data(), tile());
    EXPECT_FALSE(graphics().applyParameters(kTile, &view));
    EXPECT_FALSE(graphics().setLens(kTile, 24));
    EXPECT_NE(shown().eye.x, 5);
}

TEST_F(GraphicsSystemTest, AChangedViewIsNoNamedOneAnyMore) {
    newDocument();
    drawing::View named;
    named.name = "North";
    named.view = shown();
    drawing::Writing<drawing::Viewport>(data(), tile())->appliedView.id = data().add(named).id;
    VxGsView& view = *graphics().liveView(kTile, true);
    graphics().applyParameters(kTile, &view);
    EXPECT_FALSE(viewport().appliedView.id.isNull());
    lookFrom(view, 5);
    EXPECT_TRUE(viewport().appliedView.id.isNull());
}

TEST_F(GraphicsSystemTest, EachRecordedStepIsOneUndo) {
    newDocument();
    VxGsView& view = *graphics().liveView(kTile, true);
    for (const double step : {1.0, 2.0}) {
        graphics().beginUndoStep(kTile);
        graphics().setLens(kTile, 10 * step);
        lookFrom(view, step);
        graphics().applyParameters(kTile, &view);
    }
    EXPECT_TRUE(editor().undo());
    EXPECT_EQ(shown().eye.x, 1);
    EXPECT_EQ(shown().lens, 10);
    EXPECT_TRUE(editor().undo());
    EXPECT_EQ(shown(), drawing::Viewport().view);
}

TEST_F(GraphicsSystemTest, WhatIsChangedInBetweenIsUndoneAlone) {
    newDocument();
    graphics().beginUndoStep(kTile);
    graphics().setLens(kTile, 10);
    drawing::Writing<drawing::Viewport>(data(), tile())->brightness = 3;
    graphics().setLens(kTile, 20);
    EXPECT_EQ(data().undoLog().undo(), drawing::Status::Ok);
    EXPECT_EQ(shown().lens, 10);
    EXPECT_EQ(viewport().brightness, 3);
    EXPECT_EQ(data().undoLog().undo(), drawing::Status::Ok);
    EXPECT_EQ(viewport().brightness, 0);
    EXPECT_EQ(shown().lens, 10);
}

TEST_F(GraphicsSystemTest, AnUndoEndsItsStep) {
    newDocument();
    graphics().beginUndoStep(kTile);
    graphics().setLens(kTile, 10);
    data().undoLog().undo();
    drawing::Writing<drawing::Viewport>(data(), tile())->brightness = 3;
    graphics().setLens(kTile, 20);
    data().undoLog().undo();
    EXPECT_EQ(viewport().brightness, 3);
}

TEST_F(GraphicsSystemTest, AStepOfOneDrawingTakesInNoChangeOfAnother) {
    Document& first = newDocument(L"A");
    graphics().beginUndoStep(kTile);
    graphics().setLens(kTile, 10);
    newDocument(L"B");
    drawing::Writing<drawing::Viewport>(data(), tile())->brightness = 3;
    graphics().setLens(kTile, 20);
    data().undoLog().undo();
    EXPECT_EQ(viewport().brightness, 3);
    EXPECT_EQ(first.data().undoLog().undo(), drawing::Status::Ok);
}

TEST_F(GraphicsSystemTest, WithoutARecordEachChangeIsUndoneAlone) {
    newDocument();
    graphics().setLens(kTile, 10);
    graphics().setLens(kTile, 20);
    data().undoLog().undo();
    EXPECT_EQ(shown().lens, 10);
}

TEST_F(GraphicsSystemTest, WithinACommandTheChangesAreTheCommands) {
    newDocument();
    editor().type(L"line\n");
    graphics().beginUndoStep(kTile);
    graphics().setLens(kTile, 10);
    graphics().setLens(kTile, 20);
    editor().finishCommand(CommandState::Ended);
    EXPECT_TRUE(editor().undo());
    EXPECT_EQ(shown().lens, 50);
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

TEST_F(GraphicsSystemTest, AFaultLeavesTheViewAsItIs) {
    newDocument();
    VxGsView& view = *graphics().liveView(kTile, true);
    m_bench.faults().fail("VxGsView::setView");
    lookFrom(view, 5);
    EXPECT_NE(shown().eye.x, 5);
}

TEST_F(GraphicsSystemTest, EachCallOfAViewIsInTheJournal) {
    newDocument();
    m_bench.journal().take();
    VxGsView* view = graphics().createView({kTile, {}});
    lookFrom(*view, 5);
    view->update();
    graphics().deleteView(view);
    EXPECT_EQ(fields("call", "name"), (Lines{"VxGsClassFactory::createView", "VxGsView::setView",
                                             "VxGsView::update", "VxGsClassFactory::deleteView"}));
}

TEST_F(GraphicsSystemTest, TheRecordedViewComesBackWithItsName) {
    newDocument();
    drawing::View named;
    named.name = "Pond";
    named.view.lens = 35;
    const drawing::ObjectId id = data().add(named).id;
    {
        drawing::Writing<drawing::Viewport> writing(data(), tile());
        writing->view = named.view;
        writing->appliedView.id = id;
    }
    graphics().beginUndoStep(kTile);
    drawing::Writing<drawing::Viewport>(data(), tile())->view.width = 7;
    graphics().setLens(kTile, 10);
    EXPECT_TRUE(viewport().appliedView.id.isNull());
    data().undoLog().undo();
    EXPECT_EQ(shown(), named.view);
    EXPECT_EQ(viewport().appliedView.id, id);
    data().undoLog().redo();
    EXPECT_EQ(shown().lens, 10);
    EXPECT_EQ(shown().width, 7);
    data().undoLog().undo();
    EXPECT_EQ(shown(), named.view);
}

TEST_F(GraphicsSystemTest, ARecordWithoutAChangeIsNoStep) {
    newDocument();
    graphics().beginUndoStep(kTile);
    graphics().beginUndoStep(99);
    EXPECT_FALSE(data().undoLog().canUndo());
}

}  // namespace workbench
