#include "tests/workbench/script/script_fixture.h"
#include "workbench/script/calls.h"

namespace workbench::script {

namespace {

const std::string kHouse = std::string(PROJECT_SOURCE_ROOT) + "/examples/house.json";

class DocumentCallsTest : public ScriptTest {};

TEST_F(DocumentCallsTest, DocumentsAreMadeOpenedActivatedAndClosed) {
    run("assert(wb.new('A') == 'A') assert(wb.open('" + kHouse +
        "') == 'house.json') assert(wb.var('DWGNAME') == 'house.json') "
        "wb.activate('A') assert(wb.var('DWGNAME') == 'A') "
        "wb.close('A') assert(wb.var('DWGNAME') == 'house.json')");
}

TEST_F(DocumentCallsTest, UnknownDocumentIsNamed) {
    EXPECT_EQ(complaintOf("wb.activate('B')"), "wb.activate: there is no document \"B\"");
    EXPECT_EQ(complaintOf("wb.close('B')"), "wb.close: there is no document \"B\"");
}

TEST_F(DocumentCallsTest, DrawingThatCantBeReadIsNamed) {
    EXPECT_EQ(complaintOf("wb.open('none.json')").find("wb.open: none.json: "), 0U);
}

TEST_F(DocumentCallsTest, FirstNeedOpensADrawing) {
    run("wb.type('LINE\\n') assert(wb.var('DWGNAME') == 'Drawing1')");
}

TEST_F(DocumentCallsTest, WithoutADocumentThereIsNothingToTypeInto) {
    EXPECT_EQ(complaintOf("wb.new('A') wb.close('A') wb.type('LINE\\n')"),
              "wb.type: no document is open");
}

TEST_F(DocumentCallsTest, CommandIsBegunAndFinished) {
    run("wb.new('A') wb.begin('MOVE') assert(wb.var('CMDACTIVE') == 1) wb.journal() "
        "wb.finish() assert(wb.var('CMDACTIVE') == 0) "
        "assert(wb.journal('command')[1].event == 'ended') "
        "for _, outcome in ipairs{'ended', 'cancelled', 'failed'} do "
        "  wb.begin('MOVE') wb.journal() wb.finish(outcome) "
        "  assert(wb.journal('command')[1].event == outcome) end");
}

TEST_F(DocumentCallsTest, FinishNeedsACommandAndAKnownOutcome) {
    EXPECT_EQ(complaintOf("wb.finish()"), "wb.finish: no command is running");
    EXPECT_EQ(complaintOf("wb.finish('done')"),
              "wb.finish: a command ends as \"ended\", \"cancelled\" or \"failed\", not \"done\"");
}

TEST_F(DocumentCallsTest, EnterAndEscapeAreTyped) {
    run("wb.new('A') wb.type('LINE') assert(wb.var('CMDNAMES') == '') "
        "wb.type('\\n') assert(wb.var('CMDNAMES') == 'LINE') "
        "wb.type('\\27') assert(wb.var('CMDNAMES') == '')");
}

TEST_F(DocumentCallsTest, UnknownVariableReadsAsNilAndIsNotSet) {
    run("assert(wb.var('NOSUCHVARIABLE') == nil)");
    EXPECT_EQ(complaintOf("wb.set('NOSUCHVARIABLE', 1)"),
              "wb.set: there is no system variable \"NOSUCHVARIABLE\"");
}

TEST_F(DocumentCallsTest, ValueThatAVariableCantHoldIsRefused) {
    EXPECT_EQ(complaintOf("wb.set('LAYLOCKFADECTL', 'many')"),
              "wb.set: LAYLOCKFADECTL can't hold \"many\"");
    EXPECT_EQ(complaintOf("wb.set('LAYLOCKFADECTL')"), "wb.set: LAYLOCKFADECTL can't hold nothing");
}

TEST_F(DocumentCallsTest, VariableIsSetAsTheHostItselfDoes) {
    run("wb.new('A') wb.journal() wb.set('CleanScreenState', 1) "
        "assert(wb.var('CLEANSCREENSTATE') == 1) "
        "local change = wb.journal('var')[1] "
        "assert(change.name == 'CleanScreenState' and change.old == 0 and change.new == 1)");
}

TEST_F(DocumentCallsTest, DrawingIsReadAndChangedByPath) {
    run("wb.open('" + kHouse +
        "') assert(wb.db('layers.Roof.frozen') == false) "
        "wb.db('layers.Roof.frozen', true) assert(wb.db('layers.Roof.frozen') == true) "
        "assert(type(wb.db('sun.azimuth')) == 'number') "
        "assert(wb.db('layers.Nowhere') == nil)");
}

TEST_F(DocumentCallsTest, DrawingOfAnotherDocumentIsChangedByItsName) {
    run("wb.new('A') wb.new('B') wb.db('layers.Pipes', {}, 'A') "
        "assert(wb.db('layers.Pipes') == nil) "
        "wb.activate('A') assert(wb.db('layers.Pipes') ~= nil)");
    EXPECT_EQ(complaintOf("wb.db('layers.Pipes', {}, 'C')"), "wb.db: there is no document \"C\"");
}

TEST_F(DocumentCallsTest, WrongPathTellsWhy) {
    EXPECT_EQ(complaintOf("wb.db('nonsense.x')").find("wb.db: "), 0U);
}

TEST_F(DocumentCallsTest, ChangesAreUndoneAndRedone) {
    run("wb.open('" + kHouse +
        "') wb.type('-LAYER\\nFreeze\\nRoof\\n\\n') "
        "assert(wb.db('layers.Roof.frozen') == true) "
        "wb.undo() assert(wb.db('layers.Roof.frozen') == false) "
        "wb.redo() assert(wb.db('layers.Roof.frozen') == true)");
}

TEST_F(DocumentCallsTest, EntitiesAreSelectedForTheNextCommand) {
    run(R"(
        wb.type("_line\n0,0\n1,0\n2,0\n\n")
        local numbers = wb.db("entities")
        wb.select({numbers[2]})
        wb.type("erase\n")
        assert(#wb.db("entities") == 1 and wb.db("entities")[1] == numbers[1])
    )");
    EXPECT_EQ(complaintOf("wb.begin('MOVE') wb.select({})"),
              "wb.select: a command is running: what it asks for is answered by wb.answer");
    EXPECT_EQ(complaintOf("wb.finish() wb.select({999})"),
              "wb.select: there is no entity 999 to select");
}

TEST_F(DocumentCallsTest, ADocumentIsNotClosedFromInsideItsCommand) {
    run(R"(
        wb.env("ENABLEDASHBOARD", "1") wb.load() wb.new("A") wb.new("B")
        local complaint, other
        wb.export("VxDaAddOrRemoveReactor", {
            panelsLoaded = function()
                complaint = select(2, pcall(wb.close, "B"))
                other = pcall(wb.close, "A")
            end,
        }, 1)
        wb.type("DASHBOARDOLD\n")
        assert(complaint:find('the document "B" can\'t be closed while its command DASHBOARDOLD is at work', 1, true), complaint)
        assert(other, "no command runs there")
        wb.close("B")
    )");
}

TEST_F(DocumentCallsTest, ADocumentWhoseCommandOnlyWaitsIsClosed) {
    run("wb.new('A') wb.begin('MOVE') wb.close('A') "
        "assert(wb.journal('command')[2].event == 'cancelled')");
}

}  // namespace

}  // namespace workbench::script
