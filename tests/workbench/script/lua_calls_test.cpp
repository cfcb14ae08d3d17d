#include "workbench/script/lua_calls.h"

#include "tests/workbench/script/script_fixture.h"

namespace workbench::script {

namespace {

class LuaCallsTest : public ScriptTest {};

TEST_F(LuaCallsTest, UnknownCallIsNamed) {
    EXPECT_EQ(complaintOf("wb.nope()"), "there is no call wb.nope");
    EXPECT_EQ(complaintOf("local x = wb[3]"), "there is no call wb.3");
}

TEST_F(LuaCallsTest, UnknownMethodIsNamed) {
    runOnDashboard(R"(
        local panel, item = wb.panel("Layers"), wb.item("ID_LayerManager")
        local control = wb.control("LayerLockTransparencySliderControl")
        local function reasonOf(thing) return select(2, pcall(function() thing:frob() end)) end
        assert(reasonOf(panel):find("there is no call panel:frob", 1, true))
        assert(reasonOf(item):find("there is no call item:frob", 1, true))
        assert(reasonOf(control):find("there is no call control:frob", 1, true))
    )");
}

TEST_F(LuaCallsTest, FailureTellsPlaceCallAndReason) {
    EXPECT_EQ(placedComplaintOf("\n\nwb.close('A')"),
              "test.lua:3: wb.close: there is no document \"A\"");
}

TEST_F(LuaCallsTest, FailureCanBeCaught) {
    run("local done, reason = pcall(wb.close, 'A') "
        "assert(not done and reason:find('there is no document', 1, true))");
}

TEST_F(LuaCallsTest, ActsAreGesturesAndQuestionsAreNot) {
    run("wb.new('A') wb.var('TILEMODE') wb.set('TILEMODE', 0) wb.tree() wb.db('layers') "
        "wb.db('layers.Walls', {}) "
        "local words = {} "
        "for i, record in ipairs(wb.journal('gesture')) do words[i] = record.text end "
        "assert(table.concat(words, '; ') == "
        "    'new A; set TILEMODE 0; db layers.Walls a table', table.concat(words, '; '))");
}

TEST_F(LuaCallsTest, GestureOnAHandleTellsWhatItIs) {
    runOnDashboard(R"(
        wb.journal()
        wb.control("LayerLockTransparencySliderControl"):drag(10, 20)
        wb.control("LayerLockTransparencySliderControl"):release()
        wb.panel("Light"):menu("Hide")
        wb.item("ID_3DWalk"):click()
        local records = wb.journal("gesture")
        assert(records[1].text == "drag control LayerLockTransparencySliderControl 10 20")
        assert(records[3].text == "menu panel Light Hide")
        assert(records[4].text == "click item ID_3DWalk")
    )");
}

}  // namespace

}  // namespace workbench::script
