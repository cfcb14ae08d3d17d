#include "tests/workbench/editor/editor_fixture.h"

#include <hostapi/zorq/commands.h>
#include <hostapi/zorq/variables.h>
#include <hostapi/zorq/views.h>

namespace workbench {

using CommandFunctionsTest = EditorTest;

TEST_F(CommandFunctionsTest, AMenuStringWaitsForTheProcessor) {
    Document& document = newDocument();
    vxedSendMenuStringToExecute(&document, L"_lunits;4;", 1);
    EXPECT_EQ(read(L"LUNITS"), Value(2));
    editor().pump();
    EXPECT_EQ(read(L"LUNITS"), Value(4));
    vxedSendMenuStringToExecute(nullptr, L"_lunits;3;", 1);
    vxedSendMenuStringToExecute(&document, nullptr, 1);
    m_bench.faults().fail("vxedSendMenuStringToExecute");
    vxedSendMenuStringToExecute(&document, L"_lunits;3;", 1);
    editor().pump();
    EXPECT_EQ(read(L"LUNITS"), Value(4));
}

TEST_F(CommandFunctionsTest, DoCmdRunsAtOnce) {
    wchar_t text[] = L"_lunits\n4\n";
    EXPECT_EQ(do_cmd(text, 0, 0, 1), kRtError);
    newDocument();
    EXPECT_EQ(do_cmd(text, 0, 0, 1), kRtNorm);
    EXPECT_EQ(read(L"LUNITS"), Value(4));
    EXPECT_EQ(do_cmd(nullptr, 0, 0, 1), kRtError);
    wchar_t unknown[] = L"nonsense\n";
    EXPECT_EQ(do_cmd(unknown, 1, 0, 1), kRtError);
    m_bench.faults().fail("do_cmd", 12);
    EXPECT_EQ(do_cmd(text, 0, 0, 1), 12);
}

TEST_F(CommandFunctionsTest, HelpIsInTheJournal) {
    m_bench.journal().take();
    vxedHelp(nullptr, L"DASHBOARD", 0);
    const std::vector<JournalRecord> records = m_bench.journal().take("call");
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].field("name"), Value("vxedHelp"));
    EXPECT_EQ(records[0].field("args"), Value(Value::List{Value(), "DASHBOARD", 0}));
}

TEST_F(CommandFunctionsTest, ACommandIsActiveWhileItWaits) {
    EXPECT_FALSE(vxedCommandActive());
    newDocument();
    EXPECT_FALSE(vxedCommandActive());
    editor().type(L"line\n");
    EXPECT_TRUE(vxedCommandActive());
    m_bench.faults().fail("vxedCommandActive");
    EXPECT_FALSE(vxedCommandActive());
    m_bench.faults().unfail("vxedCommandActive");
    newDocument(L"B");
    EXPECT_FALSE(vxedCommandActive());
}

}  // namespace workbench
