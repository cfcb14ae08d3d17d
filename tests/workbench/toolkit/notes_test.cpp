#include "workbench/toolkit/notes.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"

namespace workbench {
namespace {

class NotesTest : public ToolkitTest {};

TEST_F(NotesTest, ATextFromElsewhereHasNoNumberAndNobodyIsNil) {
    noteText(journal(), "tip", L"caf\u00e9", "");
    const JournalRecord& tip = journal().records().back();
    EXPECT_EQ(tip.kind, "tip");
    EXPECT_EQ(tip.field("text"), Value("caf\xc3\xa9"));
    EXPECT_TRUE(tip.field("string").isNil());
    EXPECT_TRUE(tip.field("owner").isNil());
}

TEST_F(NotesTest, NothingIsNotedWhileNothingIsRecorded) {
    journal().setRecording(false);
    noteText(journal(), "tip", L"x", "Owner");
    EXPECT_TRUE(journal().records().empty());
}

}  // namespace
}  // namespace workbench
