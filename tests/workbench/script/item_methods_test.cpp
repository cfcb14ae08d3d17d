#include "tests/workbench/script/script_fixture.h"
#include "workbench/script/handles.h"

namespace workbench::script {

namespace {

class ItemMethodsTest : public ScriptTest {};

TEST_F(ItemMethodsTest, StateTellsWhatIsSeen) {
    runOnDashboard(R"(
        local state = wb.item("ID_LayerManager"):state()
        assert(state.name == "")
        assert(state.image == "RCDATA_TOOL_ID_LAYERMANAGER")
        assert(not state.checked and not state.disabled and not state.hidden)
        assert(state.tool == nil)
        assert(wb.item("TPL_0023"):state().tool:find("^ID_VSMM"))
        wb.item("ID_ExampleCount"):click()
        assert(wb.item("ID_ExampleCount"):state().name == "1 click")
    )");
}

TEST_F(ItemMethodsTest, ClickSendsTheItemsMacro) {
    runOnDashboard(R"(
        wb.sent()
        assert(wb.item("ID_Line"):click() == true)
        assert(wb.var("CMDNAMES") == "LINE")
        assert(wb.sent()[1].text == "_line\n")
    )");
}

TEST_F(ItemMethodsTest, ClickOnAFlyoutsToolChoosesIt) {
    runOnDashboard(R"(
        wb.item("ID_VSMM0"):click()
        assert(wb.item("TPL_0023"):state().tool == "ID_VSMM0")
        assert(wb.var("VSMATERIALMODE") == 0)
    )");
}

TEST_F(ItemMethodsTest, HiddenPanelTakesNoClick) {
    runOnDashboard(R"(
        local walk = wb.item("ID_3DWalk")
        wb.panel("Navigation"):menu("Hide")
        local done, reason = pcall(walk.click, walk)
        assert(not done and reason:find("item:click: ", 1, true))
    )");
}

}  // namespace

}  // namespace workbench::script
