#include "workbench/editor/scripted_command.h"

#include "tests/workbench/editor/editor_fixture.h"

namespace workbench {

TEST_F(EditorTest, AScriptedCommandWaitsThroughAnswersUntilEnter) {
    newDocument();
    editor().beginCommand(L"measure");
    editor().type(L"1,2\nwhatever\n");
    EXPECT_EQ(read(L"CMDNAMES"), Value("MEASURE"));
    editor().type(L"\n");
    EXPECT_EQ(events(), (Lines{"started MEASURE", "ended MEASURE"}));
}

}  // namespace workbench
