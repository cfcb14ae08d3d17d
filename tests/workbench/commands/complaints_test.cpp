#include "workbench/commands/complaints.h"

#include "tests/workbench/editor/editor_fixture.h"

namespace workbench {

/// What commands say when something is wrong: each text that is run, and the line behind it.
struct ComplaintRow {
    const wchar_t* text;
    const char* line;
};

class ComplaintsTest : public EditorTest, public testing::WithParamInterface<ComplaintRow> {};

TEST_P(ComplaintsTest, OneLineSaysWhatWasWrong) {
    newDocument();
    editor().journal().take();
    run(GetParam().text);
    Lines said;
    for (const JournalRecord& record : editor().journal().take("output"))
        said.push_back(record.field("text").asString());
    EXPECT_EQ(said, Lines{GetParam().line});
}

INSTANTIATE_TEST_SUITE_P(
    OfTheHostsCommands, ComplaintsTest,
    testing::Values(
        ComplaintRow{L"LUPREC\nmany\n",
                     "\"many\" is no value of LUPREC: enter a number from 0 to 8."},
        ComplaintRow{L"LUPREC\n9\n", "\"9\" is no value of LUPREC: enter a number from 0 to 8."},
        ComplaintRow{L"SETVAR\nNOSUCH\n", "There is no variable \"NOSUCH\"."},
        ComplaintRow{L"LINE\nhere\n", "\"here\" is no point: enter x,y or x,y,z."},
        ComplaintRow{L"CIRCLE\n1\n", "\"1\" is no point: enter x,y or x,y,z."},
        ComplaintRow{L"CIRCLE\n1,1\n-2\n", "\"-2\" is no radius: enter a number greater than 0."},
        ComplaintRow{L"ERASE\nx\n", "\"x\" chooses no object."},
        ComplaintRow{L"UNDO\n0\n", "\"0\" is no number of operations: enter 1 or more."},
        ComplaintRow{L"PSPACE\n", "No layout is on show: that needs paper space."},
        ComplaintRow{L"-LAYOUT\nset\nNowhere\n", "There is no layout \"Nowhere\"."},
        ComplaintRow{L"-LAYOUT\nx\n", "\"x\" is no option."},
        ComplaintRow{L"-LAYER\nset\nNowhere\n", "The layer \"Nowhere\" can't be made current."},
        ComplaintRow{L"-LAYER\non\nA*\n", "There is no layer \"A*\"."},
        ComplaintRow{L"-LAYER\nbounce\n", "\"bounce\" is no option."},
        ComplaintRow{L"-VIEW\nrestore\nNowhere\n", "There is no view \"Nowhere\"."},
        ComplaintRow{L"-VIEW\nup\n", "\"up\" is no option."}));

TEST_F(ComplaintsTest, GoodAnswersAreTakenInSilence) {
    newDocument();
    editor().journal().take();
    run(L"LUPREC\n5\nLINE\n0,0\n1,1\n\n-LAYER\nmake\nWalls\n\n");
    EXPECT_TRUE(editor().journal().take("output").empty());
}

}  // namespace workbench
