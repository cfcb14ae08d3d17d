#include "workbench/script/lua_listener.h"

#include "tests/workbench/script/script_fixture.h"

namespace workbench::script {

namespace {

class LuaListenerTest : public ScriptTest {};

TEST_F(LuaListenerTest, FunctionsOfTheTableAreCalled) {
    runOnDashboard(R"(
        local heard = {}
        local listener = {
            panelsWillUnload = function() heard[#heard + 1] = "will unload" end,
            panelsUnloaded = function() heard[#heard + 1] = "unloaded" end,
            visibilityChanged = function(visible) heard[#heard + 1] = "visible " .. visible end,
        }
        assert(wb.export("VxDaAddOrRemoveReactor", listener, 1) == 1)
        wb.notify(1) wb.notify(2)
        assert(table.concat(heard, ", ") == "will unload, unloaded, visible 1")
    )");
}

TEST_F(LuaListenerTest, SameTableIsOneListener) {
    runOnDashboard(R"(
        local count = 0
        local listener = { panelsUnloaded = function() count = count + 1 end }
        wb.export("VxDaAddOrRemoveReactor", listener, 1)
        wb.export("VxDaAddOrRemoveReactor", listener, 1)
        wb.notify(1) wb.notify(2)
        assert(count == 1)
        assert(wb.export("VxDaAddOrRemoveReactor", listener, 0) == 1)
        wb.notify(1)
        assert(count == 1)
    )");
}

TEST_F(LuaListenerTest, OnlyATableCanListen) {
    EXPECT_EQ(complaintOf("wb.load() wb.export('VxDaAddOrRemoveReactor', 3, 1)"),
              "wb.export: a listener must be a table of functions");
    run("assert(wb.export('VxDaAddOrRemoveReactor', nil, 1) == 0)");
}

TEST_F(LuaListenerTest, FailingListenerFailsTheCallThatMadeItRun) {
    runOnDashboard(R"(
        local reached = false
        wb.export("VxDaAddOrRemoveReactor", { panelsWillUnload = function() error("no") end }, 1)
        wb.export("VxDaAddOrRemoveReactor", { panelsUnloaded = function() reached = true end }, 1)
        local done, reason = pcall(wb.notify, 1)
        assert(not done and reason:find("no", 1, true))
        assert(reached, "the dashboard went on")
        assert(wb.notify(3) == 1)
    )");
}

TEST_F(LuaListenerTest, ListenersEndWithTheScript) {
    runOnDashboard(R"(
        wb.export("VxDaAddOrRemoveReactor", { panelsUnloaded = function() error("late") end }, 1)
    )");
    run("assert(wb.notify(1) == 1) assert(wb.unload())");
}

}  // namespace

}  // namespace workbench::script
