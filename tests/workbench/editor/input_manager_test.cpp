#include "workbench/editor/input_manager.h"

#include "tests/workbench/editor/editor_fixture.h"

namespace workbench {

using InputManagerTest = EditorTest;

TEST_F(InputManagerTest, TellsItsReactorsUntilTheyAreRemoved) {
    InputManager input;
    EventLog log;
    input.addReactor(&log);
    input.endQuiescentState();
    input.beginInput();
    input.endInput();
    input.beginQuiescentState();
    input.removeReactor(&log);
    input.beginInput();
    EXPECT_EQ(log.take(), (Lines{"rest ends", "input begins", "input ends", "rest begins"}));
}

TEST_F(InputManagerTest, AFaultKeepsAReactorOut) {
    InputManager input;
    EventLog log;
    m_bench.faults().fail("VxEdInputManager::addReactor");
    input.addReactor(&log);
    input.beginInput();
    EXPECT_EQ(log.take(), Lines{});
}

}  // namespace workbench
