#include "workbench/commands/block_editor_commands.h"

#include "tests/workbench/editor/editor_fixture.h"

namespace workbench {

TEST_F(EditorTest, BeditOpensTheBlockEditorAndBcloseLeavesIt) {
    newDocument();
    EXPECT_TRUE(run(L"_bedit\nFront door\n"));
    EXPECT_EQ(read(L"BLOCKEDITOR"), Value(1));
    EXPECT_FALSE(run(L"_bedit\n"));
    EXPECT_TRUE(run(L"_bclose\n"));
    EXPECT_EQ(read(L"BLOCKEDITOR"), Value(0));
    EXPECT_FALSE(run(L"_bclose\n"));
}

TEST_F(EditorTest, BeditWithoutABlockIsCancelled) {
    newDocument();
    run(L"_bedit\n\n");
    EXPECT_EQ(events(), (Lines{"started BEDIT", "cancelled BEDIT"}));
    EXPECT_EQ(read(L"BLOCKEDITOR"), Value(0));
}

}  // namespace workbench
