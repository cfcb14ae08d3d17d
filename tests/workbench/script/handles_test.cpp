#include "workbench/script/handles.h"

#include "tests/workbench/script/script_fixture.h"

namespace workbench::script {

namespace {

class HandlesTest : public ScriptTest {};

TEST_F(HandlesTest, DeadThingIsSaidToBeGone) {
    runOnDashboard(R"(
        local panel, item = wb.panel("Layers"), wb.item("ID_LayerManager")
        local control = wb.control("LayerLockTransparencySliderControl")
        wb.notify(1)
        local function reasonOf(call) return select(2, pcall(call)) end
        assert(reasonOf(function() panel:visible() end):find('the panel "Layers" is gone', 1, true))
        assert(reasonOf(function() item:state() end)
            :find('the item "ID_LayerManager" is gone', 1, true))
        assert(reasonOf(function() control:slider() end)
            :find('the control "LayerLockTransparencySliderControl" is gone', 1, true))
    )");
}

TEST_F(HandlesTest, HandleOutlivesARebuild) {
    runOnDashboard(R"(
        local control = wb.control("LayerLockTransparencySliderControl")
        wb.notify(0) wb.notify(1) wb.notify(2)
        assert(control:slider() == 50)
    )");
}

TEST_F(HandlesTest, MethodOnAnotherKindOfHandleIsRefused) {
    runOnDashboard(R"(
        local panel, item = wb.panel("Layers"), wb.item("ID_LayerManager")
        local done, reason = pcall(panel.visible, item)
        assert(not done and reason:find("call it as a method of a panel", 1, true))
        done, reason = pcall(item.click)
        assert(not done and reason:find("call it as a method of an item", 1, true))
    )");
}

TEST_F(HandlesTest, HandlesEndWithTheGarbage) {
    runOnDashboard(R"(
        for _ = 1, 1000 do wb.item("ID_LayerManager") end
        collectgarbage()
        assert(wb.item("ID_LayerManager"):state().image == "RCDATA_TOOL_ID_LAYERMANAGER")
    )");
}

}  // namespace

}  // namespace workbench::script
