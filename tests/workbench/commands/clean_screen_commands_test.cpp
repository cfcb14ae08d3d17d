#include "workbench/commands/clean_screen_commands.h"

#include "tests/workbench/editor/editor_fixture.h"

namespace workbench {

TEST_F(EditorTest, CleanScreenCommandsWriteTheStateThatNobodyElseWrites) {
    newDocument();
    EXPECT_TRUE(run(L"_cleanscreenon\n"));
    EXPECT_EQ(read(L"CLEANSCREENSTATE"), Value(1));
    EXPECT_EQ(events(), (Lines{"started CLEANSCREENON", "will change CleanScreenState",
                               "changed CleanScreenState", "ended CLEANSCREENON"}));
    EXPECT_TRUE(run(L"_cleanscreenoff\n"));
    EXPECT_EQ(read(L"CleanScreenState"), Value(0));
}

}  // namespace workbench
