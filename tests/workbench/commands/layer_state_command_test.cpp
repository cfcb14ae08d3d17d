#include "workbench/commands/layer_state_command.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/drawing/path_access.h"

namespace workbench {

class LayerStateCommandTest : public EditorTest {
protected:
    LayerStateCommandTest() : m_document(newDocument()) {
        LayerStateList(m_document, {}).save(L"Plan", L"");
        drawing::setByPath(m_document.data(), "layers.0.locked", true);
        events();
    }
    Value isLocked() { return drawing::getByPath(m_document.data(), "layers.0.locked"); }

    Document& m_document;
};

TEST_F(LayerStateCommandTest, RestoresWhatTheManagerIsLeftWithAsOneStepOfUndo) {
    editor().answers().queue("dialog", Value::Table{{"name", "Plan"}});
    EXPECT_TRUE(run(L"layerstate\n"));
    EXPECT_EQ(isLocked(), Value(false));
    EXPECT_EQ(events(), (Lines{"started LAYERSTATE", "ended LAYERSTATE"}));
    EXPECT_EQ(fields("dialog", "name"), Lines{"Layer States Manager"});
    editor().undo();
    EXPECT_EQ(isLocked(), Value(true));
}

TEST_F(LayerStateCommandTest, EndsTooWhenTheManagerIsClosedWithoutAChoice) {
    EXPECT_TRUE(run(L"layerstate\n"));
    EXPECT_EQ(isLocked(), Value(true));
    EXPECT_EQ(events(), (Lines{"started LAYERSTATE", "ended LAYERSTATE"}));
}

}  // namespace workbench
