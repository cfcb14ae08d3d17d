#include "workbench/editor/command_processor.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/editor/module_command.h"

#include <stdexcept>

namespace workbench {

namespace {

std::function<void()> s_work;  // what the module's command does

void runWork() {
    s_work();
}

}  // namespace

class CommandProcessorTest : public EditorTest {
protected:
    CommandProcessorTest() : m_document(newDocument()) { m_document.input().addReactor(&log()); }
    ~CommandProcessorTest() override { s_work = nullptr; }

    /// A module's command "WORK" that does something.
    void addWork(std::function<void()> work) {
        s_work = std::move(work);
        editor().commands().add(
            defineModuleCommand(L"TESTS", L"WORK", L"ARBEIT", kCommandTransparent, runWork));
    }
    void send(std::wstring_view text) { processor().sendLine(text, false, true, true); }
    void cancel() { processor().sendLine(L"\3\3", true, false, true); }

    Document& m_document;
};

// Rest.

TEST_F(CommandProcessorTest, ACommandLeavesTheRestAndComesBackToIt) {
    editor().type(L"line\n");
    EXPECT_EQ(events(), (Lines{"rest ends", "started LINE", "input begins"}));
    editor().type(L"\n");
    EXPECT_EQ(events(), (Lines{"input ends", "ended LINE", "rest begins"}));
}

TEST_F(CommandProcessorTest, BetweenTheCommandsOfOneTextThereIsNoRest) {
    send(L"_model\n_model\n");
    editor().pump();
    const Lines told = events();
    EXPECT_EQ(std::count(told.begin(), told.end(), "rest begins"), 1);
    EXPECT_EQ(told.back(), "rest begins");
}

TEST_F(CommandProcessorTest, EnterAtRestDoesNothing) {
    editor().type(L"\n\n");
    EXPECT_EQ(events(), Lines{});
}

TEST_F(CommandProcessorTest, ACommandInsideTheRestEventBringsNoSecondOne) {
    editor().beginCommand(L"LINE");
    events();
    log().on("rest begins", [this] {
        EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
        EXPECT_TRUE(processor().doCommand(L"_defaultlighting\n0\n", 0));
        EXPECT_EQ(read(L"DEFAULTLIGHTING"), Value(0));
    });
    editor().finishCommand(CommandState::Ended);
    EXPECT_EQ(events(), (Lines{"input ends", "ended LINE", "rest begins", "started DEFAULTLIGHTING",
                               "input begins", "input ends", "will change DEFAULTLIGHTING",
                               "changed DEFAULTLIGHTING", "ended DEFAULTLIGHTING"}));
    editor().beginCommand(L"LINE");
    EXPECT_EQ(events().front(), "rest ends");
}

TEST_F(CommandProcessorTest, ACommandLeftWaitingInTheRestEventEndsTheRest) {
    log().on("rest begins", [this] {
        if (read(L"DEFAULTLIGHTING") == Value(1))
            processor().doCommand(L"_defaultlighting", 0);
    });
    run(L"_model");
    EXPECT_EQ(read(L"CMDACTIVE"), Value(1));
    events();
    editor().type(L"0\n");
    EXPECT_EQ(events().back(), "rest begins");
}

// Cancelling.

TEST_F(CommandProcessorTest, AToldCommandGoesOnUntilTheProcessorRuns) {
    editor().beginCommand(L"LINE");
    events();
    cancel();
    EXPECT_EQ(read(L"CMDACTIVE"), Value(1));
    EXPECT_EQ(events(), Lines{});
    editor().pump();
    EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
    EXPECT_EQ(events(), (Lines{"input ends", "cancelled LINE", "rest begins"}));
}

TEST_F(CommandProcessorTest, ACancelAtRestIsNothing) {
    cancel();
    editor().pump();
    EXPECT_EQ(events(), Lines{});
}

TEST_F(CommandProcessorTest, EscCancelsTheCommandAndTheLineTypedSoFar) {
    editor().type(L"lin\33line\n");
    EXPECT_EQ(read(L"CMDNAMES"), Value("LINE"));
    editor().type(L"\33");
    EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
}

TEST_F(CommandProcessorTest, TwoCancelsEndATransparentCommandAndTheOneAroundIt) {
    editor().beginCommand(L"LINE");
    editor().beginCommand(L"'ZOOM");
    events();
    cancel();
    editor().pump();
    EXPECT_EQ(events(), (Lines{"input ends", "cancelled ZOOM", "input ends", "cancelled LINE",
                               "rest begins"}));
}

// Transparent and nested commands.

TEST_F(CommandProcessorTest, ATransparentCommandRunsInsideAnother) {
    editor().type(L"line\n");
    editor().type(L"'setvar\n");
    EXPECT_EQ(read(L"CMDACTIVE"), Value(3));
    EXPECT_EQ(read(L"CMDNAMES"), Value("LINE'SETVAR"));
    editor().type(L"lunits\n4\n");
    EXPECT_EQ(read(L"CMDACTIVE"), Value(1));
    EXPECT_EQ(read(L"LUNITS"), Value(4));
    editor().type(L"0,0\n1,0\n\n");
    EXPECT_EQ(m_document.data().ids(drawing::RecordKind::Entity).size(), 1U);
}

TEST_F(CommandProcessorTest, ACommandThatIsNotTransparentIsRefusedInsideAnother) {
    editor().type(L"line\n");
    events();
    m_bench.journal().take();
    editor().type(L"'erase\n");
    EXPECT_EQ(read(L"CMDNAMES"), Value("LINE"));
    EXPECT_EQ(fields("command", "event"), Lines{"refused"});
    EXPECT_EQ(events(), Lines{});
}

TEST_F(CommandProcessorTest, ATransparentCommandAtRestIsAPlainOne) {
    editor().type(L"'setvar\n");
    EXPECT_EQ(read(L"CMDACTIVE"), Value(1));
}

TEST_F(CommandProcessorTest, DoCmdRunsInsideAWaitingCommandAndLeavesItWaiting) {
    editor().beginCommand(L"LINE");
    events();
    EXPECT_TRUE(processor().doCommand(L"_defaultlighting\n0\n", 0));
    EXPECT_EQ(read(L"DEFAULTLIGHTING"), Value(0));
    EXPECT_EQ(read(L"CMDNAMES"), Value("LINE"));
    const Lines told = events();
    EXPECT_EQ(std::count(told.begin(), told.end(), "rest begins"), 0);
    EXPECT_EQ(told.back(), "ended DEFAULTLIGHTING");
}

TEST_F(CommandProcessorTest, ANestedCommandThatWaitsTakesTheNextAnswer) {
    editor().beginCommand(L"LINE");
    processor().doCommand(L"_defaultlighting\n", 0);
    EXPECT_EQ(read(L"CMDNAMES"), Value("LINE'DEFAULTLIGHTING"));
    editor().type(L"0\n");
    EXPECT_EQ(read(L"DEFAULTLIGHTING"), Value(0));
    EXPECT_EQ(read(L"CMDNAMES"), Value("LINE"));
}

// Texts.

TEST_F(CommandProcessorTest, AnUnterminatedLastWordIsTakenAsEntered) {
    send(L"_sunstatus");
    editor().pump();
    EXPECT_EQ(read(L"CMDNAMES"), Value("SUNSTATUS"));
    EXPECT_FALSE(processor().prompt().empty());
}

TEST_F(CommandProcessorTest, TypedTextWaitsForItsEnd) {
    editor().type(L"_sunst");
    EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
    editor().type(L"atus ");
    EXPECT_EQ(read(L"CMDNAMES"), Value("SUNSTATUS"));
}

TEST_F(CommandProcessorTest, DoCmdHasRunAllItsTextBeforeItReturns) {
    EXPECT_TRUE(processor().doCommand(L"_lunits\n4\n_luprec\n2", 1));
    EXPECT_EQ(read(L"LUNITS"), Value(4));
    EXPECT_EQ(read(L"LUPREC"), Value(2));
    EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
}

TEST_F(CommandProcessorTest, AMacroRunsLikeTypedTextOnceTheProcessorRuns) {
    processor().sendMacro(L"^C^C_-layer;set;0;;_line ", 1);
    EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
    editor().pump();
    EXPECT_EQ(read(L"CMDNAMES"), Value("LINE"));
}

TEST_F(CommandProcessorTest, AnUnknownCommandIsSaidInTheJournalOnly) {
    m_bench.journal().take();
    EXPECT_FALSE(run(L"nonsense\n"));
    EXPECT_EQ(events(), Lines{});
    const std::vector<JournalRecord> records = m_bench.journal().take("command");
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].field("text"), Value("nonsense"));
    EXPECT_EQ(records[0].field("event"), Value("unknown"));
}

TEST_F(CommandProcessorTest, AVariablesNameAsksForItsValue) {
    editor().type(L"LAYLOCKFADECTL\n40\n");
    EXPECT_EQ(read(L"LAYLOCKFADECTL"), Value(40));
    const Lines told = events();
    EXPECT_EQ(told[1], "started SETVAR");
}

TEST_F(CommandProcessorTest, SentTextsAreInTheJournalWithTheirWays) {
    m_bench.journal().take();
    processor().sendLine(L"_sunstatus", false, true, true);
    cancel();
    processor().sendMacro(L"_line\n", 1);
    processor().doCommand(L"_model\n", 0);
    EXPECT_EQ(fields("command", "way"), (Lines{"line", "cancel", "menu", "do_cmd"}));
}

TEST_F(CommandProcessorTest, TheJournalTellsFlagDocumentAndEvents) {
    m_bench.journal().take();
    processor().doCommand(L"_model\n", 1);
    const std::vector<JournalRecord> records = m_bench.journal().take("command");
    ASSERT_EQ(records.size(), 3U);
    EXPECT_EQ(records[0].field("flag"), Value(1));
    EXPECT_EQ(records[0].field("document"), Value("A"));
    EXPECT_EQ(records[1].field("text"), Value("MODEL"));
    EXPECT_EQ(records[1].field("event"), Value("started"));
    EXPECT_EQ(records[2].field("event"), Value("ended"));
}

TEST_F(CommandProcessorTest, TextsThatSendThemselvesWithoutEndAreStopped) {
    addWork([this] { send(L"_work\n"); });
    send(L"_work\n");
    EXPECT_THROW(editor().pump(), std::runtime_error);
}

// Modules' commands.

TEST_F(CommandProcessorTest, TextSentByACommandRunsAfterIt) {
    addWork([this] {
        send(L"_model\n");
        EXPECT_EQ(read(L"CMDNAMES"), Value("WORK"));
    });
    send(L"_work\n");
    editor().pump();
    EXPECT_EQ(events(),
              (Lines{"rest ends", "started WORK", "ended WORK", "started MODEL",
                     "will change TILEMODE", "changed TILEMODE", "ended MODEL", "rest begins"}));
}

TEST_F(CommandProcessorTest, ACommandThatLeavesAnotherWaitingEndsBeforeIt) {
    addWork([this] { processor().doCommand(L"_sunstatus\n", 0); });
    run(L"_work\n");
    EXPECT_EQ(read(L"CMDNAMES"), Value("SUNSTATUS"));
    cancel();
    editor().pump();
    EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
}

TEST_F(CommandProcessorTest, ACommandAtWorkCannotBeCancelledOrFinished) {
    addWork([this] {
        EXPECT_FALSE(processor().finish(CommandState::Ended));
        processor().doCommand(L"\3\3", 0);
    });
    EXPECT_TRUE(run(L"_work\n"));
    const Lines told = events();
    EXPECT_EQ(std::count(told.begin(), told.end(), "ended WORK"), 1);
    EXPECT_EQ(std::count(told.begin(), told.end(), "cancelled WORK"), 0);
}

TEST_F(CommandProcessorTest, ACommandThatThrowsHasFailedAndTheProcessorGoesOn) {
    addWork([] { throw std::runtime_error("broken"); });
    EXPECT_THROW(run(L"_work\n"), std::runtime_error);
    EXPECT_EQ(events(), (Lines{"rest ends", "started WORK", "failed WORK"}));
    EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
    EXPECT_EQ(m_document.locks().mode(), 0);
    EXPECT_TRUE(run(L"_lunits\n4\n"));
    EXPECT_EQ(read(L"LUNITS"), Value(4));
    EXPECT_EQ(events().back(), "rest begins");
}

// Documents, locks and undo.

TEST_F(CommandProcessorTest, TextForADocumentBehindRunsWithItCurrent) {
    Document& second = newDocument(L"B");
    m_document.processor().sendLine(L"_lunits\n4\n", false, false, true);
    editor().pump();
    EXPECT_EQ(editor().documents().current(), &second);
    EXPECT_EQ(read(L"LUNITS"), Value(2));
    editor().documents().activate(m_document);
    EXPECT_EQ(read(L"LUNITS"), Value(4));
}

TEST_F(CommandProcessorTest, SendingMayBringTheDocumentToTheFront) {
    newDocument(L"B");
    m_document.processor().sendLine(L"_model\n", true, false, true);
    EXPECT_NE(editor().documents().active(), &m_document);
    editor().pump();
    EXPECT_EQ(editor().documents().active(), &m_document);
}

TEST_F(CommandProcessorTest, SendingMayWrapUpWhatRunsInADocumentBehind) {
    editor().beginCommand(L"LINE");
    newDocument(L"B");
    m_document.processor().sendLine(L"_model\n", false, true, true);
    editor().pump();
    EXPECT_FALSE(m_document.processor().isActive());
    const Lines told = events();
    EXPECT_EQ(std::count(told.begin(), told.end(), "cancelled LINE"), 1);
    EXPECT_EQ(std::count(told.begin(), told.end(), "ended MODEL"), 1);
}

TEST_F(CommandProcessorTest, ARunningCommandLocksItsDocument) {
    editor().beginCommand(L"LINE");
    EXPECT_EQ(m_document.locks().mode(), DocumentLocks::kAutoWrite);
    editor().finishCommand(CommandState::Ended);
    EXPECT_EQ(m_document.locks().mode(), 0);
}

TEST_F(CommandProcessorTest, ACommandThatWritesDoesNotStartInADocumentThatAnotherHasToItself) {
    m_document.locks().lock(DocumentLocks::kExclusiveWrite, this);
    events();
    m_bench.journal().take();
    EXPECT_FALSE(run(L"_line\n"));
    EXPECT_EQ(events(), (Lines{"rest ends", "rest begins"}));
    EXPECT_EQ(fields("command", "event"), Lines{"locked"});
    EXPECT_EQ(fields("output", "text"), Lines{"A is locked: LINE can't be done now."});
    EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
    EXPECT_EQ(m_document.locks().mode(), DocumentLocks::kExclusiveWrite);
    m_document.locks().unlock(this);
    EXPECT_TRUE(run(L"_line\n0,0\n1,0\n\n"));
    EXPECT_EQ(m_document.data().ids(drawing::RecordKind::Entity).size(), 1U);
}

TEST_F(CommandProcessorTest, ACommandIsOneStepOfUndo) {
    run(L"_line\n0,0\n1,0\n1,1\n\n");
    EXPECT_EQ(m_document.data().ids(drawing::RecordKind::Entity).size(), 2U);
    EXPECT_EQ(m_document.data().undoLog().undoName(), "LINE");
    editor().undo();
    EXPECT_TRUE(m_document.data().ids(drawing::RecordKind::Entity).empty());
}

TEST_F(CommandProcessorTest, FinishTellsTheOutcomeAskedFor) {
    EXPECT_FALSE(editor().finishCommand(CommandState::Ended));
    editor().beginCommand(L"-LAYER");
    EXPECT_FALSE(editor().finishCommand(CommandState::Waiting));
    EXPECT_TRUE(editor().finishCommand(CommandState::Cancelled));
    EXPECT_EQ(events(), (Lines{"rest ends", "started -LAYER", "input begins", "input ends",
                               "cancelled -LAYER", "rest begins"}));
}

// The document goes.

TEST_F(CommandProcessorTest, ACommandMayCloseItsDocumentAndEndsAllTheSame) {
    addWork([this] { editor().documents().close(m_document); });
    vxDocManagerPtr()->addReactor(&log());
    processor().runNow(L"_work\n_line\n");
    vxDocManagerPtr()->removeReactor(&log());
    EXPECT_EQ(events(), (Lines{"rest ends", "started WORK", "to be destroyed A", "destroyed A",
                               "ended WORK"}));
}

TEST_F(CommandProcessorTest, ACommandThatWouldWaitInAClosedDocumentIsCancelled) {
    log().on("started LINE", [this] { editor().documents().close(m_document); });
    editor().type(L"line\n");
    EXPECT_EQ(events(), (Lines{"rest ends", "started LINE", "cancelled LINE"}));
}

TEST_F(CommandProcessorTest, ADocumentThatIsClosedAsACommandIsFinishedFromOutsideEndsItOnce) {
    editor().beginCommand(L"LINE");
    log().on("input ends", [this] { editor().documents().close(m_document); });
    events();
    EXPECT_TRUE(editor().finishCommand(CommandState::Ended));
    EXPECT_EQ(events(), (Lines{"input ends", "ended LINE"}));
}

TEST_F(CommandProcessorTest, WhatWaitsAroundATransparentCommandThatClosesTheDocumentIsCancelled) {
    addWork([this] { editor().documents().close(m_document); });
    editor().beginCommand(L"LINE");
    events();
    editor().type(L"'work\n");
    EXPECT_EQ(events(), (Lines{"started WORK", "ended WORK", "input ends", "cancelled LINE"}));
}

}  // namespace workbench
