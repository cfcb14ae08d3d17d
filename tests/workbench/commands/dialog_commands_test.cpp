#include "workbench/commands/dialog_commands.h"

#include "tests/workbench/editor/editor_fixture.h"

namespace workbench {

TEST_F(EditorTest, ADialogCommandNamesItsDialogInTheJournalAndEnds) {
    newDocument();
    EXPECT_TRUE(run(L"_.HELP "));
    EXPECT_TRUE(run(L"layer\n"));
    EXPECT_EQ(fields("dialog", "name"), (Lines{"Help", "Layer Properties Manager"}));
    EXPECT_EQ(events(), (Lines{"started HELP", "ended HELP", "started LAYER", "ended LAYER"}));
}

}  // namespace workbench
