#include "workbench/host/connections.h"

#include "tests/support/control_bench.h"
#include "workbench/editor/editor.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/gestures/slider_gestures.h"
#include "workbench/menu/menu_host.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

namespace workbench {

namespace {

class ConnectionsTest : public support::ControlBench {
protected:
    std::size_t undoSteps() {
        return bench().editor().documents().current()->data().undoLog().undoCount();
    }
    /// The words of a window in the tree, such as the selected entry.
    std::string tree(HWND window) {
        const Window& found = *bench().windows().find(window);
        return found.widget->describe(found);
    }
    double stepSize() { return var(L"STEPSIZE").asReal(); }
};

TEST_F(ConnectionsTest, EscapeInAControlCancelsTheRunningCommand) {
    useMenuOf("LayerLockTransparencySliderControl");
    showControl("LayerLockTransparencySliderControl");
    begin(L"MOVE");
    EXPECT_EQ(var(L"CMDNAMES"), Value("MOVE"));
    gestures::pressKey(bench().toolkit(), "escape", slider());
    EXPECT_EQ(var(L"CMDNAMES"), Value(""));
}

TEST_F(ConnectionsTest, WhatIsTypedInTheDrawingIsACommand) {
    newDocument(L"A");
    gestures::blur(bench().toolkit());
    gestures::typeText(bench().toolkit(), L"LUNITS");
    gestures::pressKey(bench().toolkit(), "enter");
    gestures::typeText(bench().toolkit(), L"4");
    EXPECT_EQ(var(L"LUNITS"), Value(2));
    gestures::pressKey(bench().toolkit(), "enter");
    EXPECT_EQ(var(L"LUNITS"), Value(4));
}

TEST_F(ConnectionsTest, ADragOfASliderIsOneStepOfUndo) {
    useMenuOf("3DNavStepSizeSliderControl");
    showControl("3DNavStepSizeSliderControl");
    const double before = stepSize();
    const std::size_t steps = undoSteps();
    drag({10, 20, 30});
    release();
    EXPECT_NE(stepSize(), before);
    EXPECT_EQ(undoSteps(), steps + 1);
    drag({40});
    release();
    EXPECT_EQ(undoSteps(), steps + 2);
    bench().editor().undo();
    bench().editor().undo();
    EXPECT_EQ(stepSize(), before);
}

TEST_F(ConnectionsTest, ARunOfTheWheelIsOneStepOfUndo) {
    useMenuOf("3DNavStepSizeSliderControl");
    showControl("3DNavStepSizeSliderControl");
    const auto turn = [this](int notches) {
        gestures::turnWheel(bench().toolkit(), slider(),
                            gestures::middleOf(bench().toolkit(), slider()), notches);
        settle();
    };
    const double before = stepSize();
    const std::size_t steps = undoSteps();
    turn(1);
    turn(2);
    EXPECT_EQ(undoSteps(), steps + 1);
    wait(Mouse::kWheelRest + 1);
    turn(1);
    EXPECT_EQ(undoSteps(), steps + 2);
    bench().editor().undo();
    bench().editor().undo();
    EXPECT_EQ(stepSize(), before);
}

TEST_F(ConnectionsTest, TheListOfWorkspacesFollowsTheWorkspace) {
    useExampleMenu();
    showControl("WorkspacesControl");
    const auto shownWorkspace = [this] { return tree(part(window(), "combo")); };
    EXPECT_NE(shownWorkspace().find("3D Modeling"), std::string::npos);
    bench().menu().switchWorkspace("Drafting");
    EXPECT_NE(shownWorkspace().find("Drafting"), std::string::npos);
}

}  // namespace

}  // namespace workbench
