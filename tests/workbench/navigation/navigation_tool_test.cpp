#include "workbench/navigation/navigation_tool.h"

#include "tests/workbench/editor/editor_fixture.h"

namespace workbench {

class NavigationToolTest : public EditorTest {
protected:
    NavigationTool& tool() { return m_bench.navigation(); }
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
    tool().playAnimation();
    EXPECT_EQ(tool().animation(), AnimationState::Playing);
    tool().pauseRecording();
    EXPECT_EQ(tool().animation(), AnimationState::Playing);
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
