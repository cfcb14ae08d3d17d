#include "workbench/toolkit/text_notes.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"

namespace workbench {
namespace {

class TextNotesTest : public ToolkitTest {
protected:
    TextNotes m_notes{journal(), toolkit().texts()};
};

TEST_F(TextNotesTest, ATextFromElsewhereHasNoNumberAndNobodyIsNil) {
    m_notes.note("tip", L"caf\u00e9", "");
    const JournalRecord& tip = journal().records().back();
    EXPECT_EQ(tip.kind, "tip");
    EXPECT_EQ(tip.field("text"), Value("caf\xc3\xa9"));
    EXPECT_TRUE(tip.field("string").isNil());
    EXPECT_TRUE(tip.field("owner").isNil());
}

TEST_F(TextNotesTest, NothingIsNotedWhileNothingIsRecorded) {
    journal().setRecording(false);
    m_notes.note("tip", L"x", "Owner");
    EXPECT_TRUE(journal().records().empty());
}

}  // namespace
}  // namespace workbench
