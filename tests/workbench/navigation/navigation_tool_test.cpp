#include "workbench/navigation/navigation_tool.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/path_access.h"
#include "workbench/drawing/records/view.h"
#include "workbench/drawing/records/viewport.h"

namespace workbench {

class NavigationToolTest : public EditorTest {
protected:
    NavigationTool& tool() { return m_bench.navigation(); }
    drawing::Database& data() { return editor().documents().current()->data(); }
    const drawing::Viewport& viewport() {
        return *data().look<drawing::Viewport>(drawing::activeViewport(data()));
    }
    const drawing::ViewParameters& shown() { return viewport().view; }
    /// Looks from (0, 0, 10) at the origin, at a field of 8 by 4.
    void lookDown() {
        drawing::Writing<drawing::Viewport> writing(data(), drawing::activeViewport(data()));
        writing->view.eye = {0, 0, 10};
        writing->view.target = {};
        writing->view.width = 8;
        writing->view.height = 4;
    }
};

TEST_F(NavigationToolTest, RunsFromStartToStopInOneModeAtATime) {
    EXPECT_FALSE(tool().isRunning());
    EXPECT_EQ(tool().tool(), nullptr);
    EXPECT_EQ(tool().mode(), 0);
    EXPECT_TRUE(tool().start(NavigationTool::kFreeOrbit));
    EXPECT_FALSE(tool().start(NavigationTool::kPan));
    ASSERT_NE(tool().tool(), nullptr);
    EXPECT_EQ(tool().mode(), 22);
    tool().switchMode(NavigationTool::kWalk);
    EXPECT_EQ(tool().mode(), 17);
    tool().stop();
    tool().stop();
    EXPECT_FALSE(tool().isRunning());
}

TEST_F(NavigationToolTest, TellsWalkingFromOrbiting) {
    EXPECT_EQ(tool().activity(), 0);
    tool().start(NavigationTool::kConstrainedOrbit);
    EXPECT_EQ(tool().activity(), 1);
    tool().switchMode(NavigationTool::kFly);
    EXPECT_EQ(tool().activity(), 2);
}

TEST_F(NavigationToolTest, AProjectionChangesTheViewAndNotTheMode) {
    newDocument();
    tool().switchMode(NavigationTool::kPerspectiveProjection);
    EXPECT_EQ(read(L"PERSPECTIVE"), Value(0));
    tool().start(NavigationTool::kPan);
    tool().switchMode(NavigationTool::kPerspectiveProjection);
    EXPECT_EQ(read(L"PERSPECTIVE"), Value(1));
    EXPECT_EQ(tool().mode(), NavigationTool::kPan);
    tool().switchMode(NavigationTool::kParallelProjection);
    EXPECT_EQ(read(L"PERSPECTIVE"), Value(0));
}

TEST_F(NavigationToolTest, AnotherLensNarrowsTheFieldAndTells) {
    newDocument();
    lookDown();
    events();
    tool().setLens(100);
    EXPECT_EQ(shown().lens, 100);
    EXPECT_EQ(shown().width, 4);
    EXPECT_EQ(shown().height, 2);
    EXPECT_EQ(events(), Lines{"view changed"});
    tool().setLens(0);
    tool().setLens(-1);
    EXPECT_EQ(shown().lens, 100);
}

TEST_F(NavigationToolTest, APresetTurnsTheCameraAtTheSameDistance) {
    newDocument();
    lookDown();
    events();
    tool().restorePreset(drawing::PresetView::Left);
    EXPECT_EQ(shown().eye, (drawing::Vec3{-10, 0, 0}));
    EXPECT_EQ(shown().up, (drawing::Vec3{0, 0, 1}));
    EXPECT_EQ(events(), Lines{"view changed"});
}

TEST_F(NavigationToolTest, ANamedViewIsAppliedAndAnotherObjectIsNot) {
    newDocument();
    drawing::View view;
    view.name = "Pond";
    view.view.eye = {3, 2, 1};
    view.view.lens = 35;
    const drawing::ObjectId id = data().add(view).id;
    tool().restoreNamed(id);
    EXPECT_EQ(shown(), view.view);
    EXPECT_EQ(viewport().appliedView.id, id);
    tool().restoreNamed(data().find(drawing::RecordKind::Layer, "0"));
    tool().restoreNamed({});
    EXPECT_EQ(viewport().appliedView.id, id);
    tool().setLens(40);
    EXPECT_TRUE(viewport().appliedView.id.isNull());
}

TEST_F(NavigationToolTest, TheCameraMovesAtTheSameAngleOfView) {
    newDocument();
    lookDown();
    tool().moveCamera({0, 0, 20});
    EXPECT_EQ(shown().eye, (drawing::Vec3{0, 0, 20}));
    EXPECT_EQ(shown().target, drawing::Vec3());
    EXPECT_EQ(shown().width, 16);
    EXPECT_EQ(shown().height, 8);
    tool().moveTarget({0, 0, 15});
    EXPECT_EQ(shown().eye, (drawing::Vec3{0, 0, 20}));
    EXPECT_EQ(shown().target, (drawing::Vec3{0, 0, 15}));
    EXPECT_EQ(shown().width, 4);
}

TEST_F(NavigationToolTest, EyeAndTargetNeverMeet) {
    newDocument();
    lookDown();
    tool().moveCamera({});
    tool().moveTarget({0, 0, 10});
    EXPECT_EQ(shown().eye, (drawing::Vec3{0, 0, 10}));
    EXPECT_EQ(shown().target, drawing::Vec3());
}

TEST_F(NavigationToolTest, WithoutADocumentOrAViewportNoViewMoves) {
    const auto moveAll = [this] {
        tool().setLens(20);
        tool().restorePreset(drawing::PresetView::Top);
        tool().restoreNamed({});
        tool().moveCamera({1, 1, 1});
        tool().moveTarget({2, 2, 2});
    };
    moveAll();
    newDocument();
    drawing::setByPath(editor().documents().current()->data(), "current.modelViewport", 99);
    events();
    moveAll();
    EXPECT_TRUE(events().empty());
}

TEST_F(NavigationToolTest, AnAnimationIsRecordedPausedAndPlayed) {
    tool().recordAnimation();
    tool().playAnimation();
    tool().saveAnimation();
    EXPECT_EQ(tool().animation(), AnimationState::None);
    tool().start(NavigationTool::kFly);
    tool().recordAnimation();
    EXPECT_EQ(tool().animation(), AnimationState::Recording);
    tool().pauseRecording();
    EXPECT_EQ(tool().animation(), AnimationState::Paused);
    m_bench.journal().take();
    tool().playAnimation();
    EXPECT_EQ(fields("navigation", "animation"), (Lines{"playing", "paused"}));
    EXPECT_EQ(tool().animation(), AnimationState::Paused);
    tool().recordAnimation();
    EXPECT_EQ(tool().animation(), AnimationState::Recording);
}

TEST_F(NavigationToolTest, APlayShowsTheRecordedViewsToTheLast) {
    newDocument();
    lookDown();
    tool().start(NavigationTool::kWalk);
    tool().recordAnimation();
    tool().moveCamera({0, 0, 20});
    tool().pauseRecording();
    tool().moveCamera({0, 0, 30});
    tool().recordAnimation();
    tool().moveCamera({0, 0, 40});
    EXPECT_EQ(tool().recordedViews(), 3U);
    tool().moveCamera({0, 0, 5});
    std::vector<double> heights;
    log().on("view changed", [this, &heights] { heights.push_back(shown().eye.z); });
    tool().playAnimation();
    EXPECT_EQ(heights, (std::vector<double>{10, 20, 40, 5}));
    EXPECT_EQ(tool().recordedViews(), 4U);
}

TEST_F(NavigationToolTest, AStopEmptiesTheRecordingAndEndsAPlay) {
    newDocument();
    lookDown();
    tool().start(NavigationTool::kWalk);
    tool().recordAnimation();
    tool().moveCamera({0, 0, 20});
    tool().moveCamera({0, 0, 30});
    m_bench.journal().take();
    log().on("view changed", [this] { tool().stop(); });
    tool().playAnimation();
    EXPECT_EQ(shown().eye.z, 10);
    EXPECT_EQ(tool().recordedViews(), 0U);
    EXPECT_EQ(tool().animation(), AnimationState::None);
    EXPECT_EQ(fields("navigation", "animation"), (Lines{"playing", "none"}));
}

TEST_F(NavigationToolTest, ALockedViewportStaysAsItIs) {
    newDocument();
    lookDown();
    drawing::Writing<drawing::Viewport>(data(), drawing::activeViewport(data()))->locked = true;
    tool().start(NavigationTool::kPan);
    events();
    tool().setLens(20);
    tool().restorePreset(drawing::PresetView::Left);
    tool().moveCamera({1, 1, 1});
    EXPECT_EQ(shown().eye, (drawing::Vec3{0, 0, 10}));
    EXPECT_EQ(shown().lens, 50);
    EXPECT_TRUE(events().empty());
}

TEST_F(NavigationToolTest, AnOrbitIsOneStepOfUndoAndOfTheViewHistory) {
    Document& document = newDocument();
    lookDown();
    const std::size_t before = document.viewHistory().depth(drawing::activeViewport(data()));
    const std::size_t steps = data().undoLog().undoCount();
    tool().start(NavigationTool::kFreeOrbit);
    tool().moveCamera({0, 0, 20});
    tool().moveCamera({0, 0, 30});
    tool().stop();
    EXPECT_EQ(document.viewHistory().depth(drawing::activeViewport(data())), before + 1);
    EXPECT_EQ(data().undoLog().undoCount(), steps + 1);
    editor().undo();
    EXPECT_EQ(shown().eye.z, 10);
}

TEST_F(NavigationToolTest, ADocumentThatGoesDuringAnOrbitDisturbsNobody) {
    Document& first = newDocument(L"A");
    newDocument(L"B");
    editor().documents().activate(first);
    tool().start(NavigationTool::kFreeOrbit);
    editor().documents().close(first);
    tool().stop();
    EXPECT_FALSE(tool().isRunning());
}

TEST_F(NavigationToolTest, SavingEndsTheRecordingAndAsksForAPlace) {
    tool().start(NavigationTool::kFly);
    tool().recordAnimation();
    m_bench.journal().take();
    tool().saveAnimation();
    EXPECT_EQ(tool().animation(), AnimationState::Paused);
    tool().showAnimationSettings();
    tool().showWalkSettings();
    EXPECT_EQ(fields("dialog", "name"),
              (Lines{"Save As", "Animation Settings", "Walk and Fly Settings"}));
}

}  // namespace workbench
