#include "tests/workbench/script/script_fixture.h"
#include "workbench/loader/module_loader.h"
#include "workbench/script/calls.h"

namespace workbench::script {

namespace {

class ModuleCallsTest : public ScriptTest {};

TEST_F(ModuleCallsTest, ModuleIsLoadedAndUnloaded) {
    run("assert(wb.load() == true)");
    EXPECT_TRUE(workbench().modules().isLoaded(L"VxDashboard.qlx"));
    run("assert(wb.unload() == true)");
    EXPECT_FALSE(workbench().modules().isLoaded(L"VxDashboard.qlx"));
}

TEST_F(ModuleCallsTest, UnloadOfWhatIsNotLoadedFails) {
    EXPECT_EQ(complaintOf("wb.unload()"), "wb.unload: VxDashboard.qlx: it is not loaded");
}

TEST_F(ModuleCallsTest, EnvironmentDecidesOnTheCommands) {
    run("wb.env('ENABLEDASHBOARD', nil) wb.load() wb.type('DASHBOARDOLD\\n') "
        "assert(wb.panel('Layers') == nil) wb.unload()");
    run("wb.env('ENABLEDASHBOARD', 'yes') wb.load() wb.type('DASHBOARDOLD\\n') "
        "assert(wb.panel('Layers'))");
}

TEST_F(ModuleCallsTest, NameThatNoVariableCanHaveIsRefused) {
    EXPECT_EQ(complaintOf("wb.env('A=B', '1')"), "wb.env: \"A=B\" can't be the name of a variable");
}

TEST_F(ModuleCallsTest, CodesAreHandedToTheModule) {
    run("wb.load() assert(wb.notify(3) == 1 and wb.notify(2) == 0)");
    EXPECT_EQ(complaintOf("wb.unload() wb.notify(3)"),
              "wb.notify: the dashboard module is not loaded");
}

TEST_F(ModuleCallsTest, TheModuleIsNotUnloadedFromInsideOneOfItsCalls) {
    run(R"(
        wb.env("ENABLEDASHBOARD", "1") wb.load() wb.new("A")
        local complaint
        wb.export("VxDaAddOrRemoveReactor", {
            visibilityChanged = function() complaint = select(2, pcall(wb.unload)) end,
            panelsUnloaded = function() complaint = select(2, pcall(wb.unload)) end,
        }, 1)
        wb.type("DASHBOARDOLD\n")
        assert(complaint:find("the module can't be unloaded from inside one of its calls", 1, true))
        assert(wb.panel("Layers"))
        complaint = nil
        wb.notify(1)
        assert(complaint)
        assert(wb.unload())
    )");
}

}  // namespace

}  // namespace workbench::script
