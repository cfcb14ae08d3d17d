#include "workbench/script/script_engine.h"

#include "tests/workbench/script/script_fixture.h"
#include "workbench/base/input_error.h"

namespace workbench::script {

namespace {

class ScriptEngineTest : public ScriptTest {};

TEST_F(ScriptEngineTest, ScriptWithoutComplaintPasses) {
    const ScriptResult result = runScriptText(workbench(), "local sum = 1 + 1", "test.lua");
    EXPECT_TRUE(result.passed);
    EXPECT_EQ(result.complaint, "");
}

TEST_F(ScriptEngineTest, FailedCheckTellsPlaceAndReason) {
    EXPECT_EQ(placedComplaintOf("\n\nassert(1 == 2)"), "test.lua:3: assertion failed!");
    EXPECT_EQ(placedComplaintOf("assert(nil, 'no layer')"), "test.lua:1: no layer");
}

TEST_F(ScriptEngineTest, PassedCheckHandsItsArgumentsThrough) {
    run("local a, b, c = assert(1, 'two', 3) assert(a == 1 and b == 'two' and c == 3)");
}

TEST_F(ScriptEngineTest, LuaErrorTellsPlaceAndReason) {
    EXPECT_EQ(placedComplaintOf("\nlocal x = nil + 1"),
              "test.lua:2: attempt to perform arithmetic on a nil value");
}

TEST_F(ScriptEngineTest, WrongSyntaxTellsPlaceAndReason) {
    EXPECT_EQ(placedComplaintOf("local = 3"), "test.lua:1: <name> expected near '='");
}

TEST_F(ScriptEngineTest, ErrorThatIsNoTextIsStillTold) {
    EXPECT_EQ(placedComplaintOf("error(setmetatable({}, {__tostring = function() return 'bad' "
                                "end}))"),
              "bad");
}

TEST_F(ScriptEngineTest, CompiledCodeIsRefused) {
    EXPECT_NE(placedComplaintOf("\x1bLua").find("attempt to load a binary chunk"),
              std::string::npos);
}

TEST_F(ScriptEngineTest, ArgumentsAreSeenInBothWaysOfLua) {
    const ScriptResult result = runScriptText(
        workbench(),
        "assert(arg[0] == 'test.lua' and arg[1] == 'one' and arg[2] == 'two' and #arg == 2) "
        "local a, b = ... assert(a == 'one' and b == 'two')",
        "test.lua", {"one", "two"});
    EXPECT_TRUE(result.passed) << result.complaint;
}

TEST_F(ScriptEngineTest, ScriptsOfOneWorkbenchShareItButNotTheirGlobals) {
    run("wb.new('A') shared = true");
    run("wb.activate('A') assert(shared == nil)");
}

TEST_F(ScriptEngineTest, FileThatIsntThereIsAnInputError) {
    EXPECT_THROW(runScriptFile(workbench(), "no/such/script.lua"), InputError);
}

TEST_F(ScriptEngineTest, FileIsRunUnderItsName) {
    const std::filesystem::path file =
        std::filesystem::path(PROJECT_SOURCE_ROOT) / "examples" / "scripts" / "clean_screen.lua";
    std::filesystem::current_path(PROJECT_SOURCE_ROOT);
    const ScriptResult result = runScriptFile(workbench(), file);
    EXPECT_TRUE(result.passed) << result.complaint;
}

}  // namespace

}  // namespace workbench::script
