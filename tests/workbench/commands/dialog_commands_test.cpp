#include "workbench/commands/dialog_commands.h"

#include "tests/workbench/editor/editor_fixture.h"

namespace workbench {

TEST_F(EditorTest, ADialogCommandNamesItsDialogInTheJournalAndEnds) {
    newDocument();
    EXPECT_TRUE(run(L"_.CUI "));
    EXPECT_TRUE(run(L"layer\n"));
    EXPECT_EQ(fields("dialog", "name"),
              (Lines{"Customize User Interface", "Layer Properties Manager"}));
    EXPECT_EQ(events(), (Lines{"started CUI", "ended CUI", "started LAYER", "ended LAYER"}));
}

}  // namespace workbench
