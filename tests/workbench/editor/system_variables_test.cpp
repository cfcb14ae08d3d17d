#include "workbench/editor/system_variables.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/profiles/profile_store.h"

namespace workbench {

using SystemVariablesTest = EditorTest;

TEST_F(SystemVariablesTest, NamesAreTakenWithoutRegardToCaseAndEventsCarryTheTablesSpelling) {
    EXPECT_TRUE(write(L"laylockfadectl", 40));
    EXPECT_EQ(read(L"LayLockFadeCtl"), Value(40));
    EXPECT_EQ(events(), (Lines{"will change LAYLOCKFADECTL", "changed LAYLOCKFADECTL"}));
}

TEST_F(SystemVariablesTest, AnUnknownNameIsNilAndTellsNothing) {
    EXPECT_TRUE(read(L"NONSENSE").isNil());
    EXPECT_FALSE(write(L"NONSENSE", 1));
    EXPECT_EQ(events(), Lines{});
}

TEST_F(SystemVariablesTest, WritingTheSameValueTellsItsEventsButNoChange) {
    write(L"LAYLOCKFADECTL", 40);
    events();
    m_bench.journal().take();
    EXPECT_TRUE(write(L"LAYLOCKFADECTL", 40));
    EXPECT_EQ(events(), (Lines{"will change LAYLOCKFADECTL", "changed LAYLOCKFADECTL"}));
    EXPECT_EQ(fields("var", "name"), Lines{});
}

TEST_F(SystemVariablesTest, TheJournalHasNameOldAndNewValue) {
    m_bench.journal().take();
    write(L"LAYLOCKFADECTL", -40);
    const std::vector<JournalRecord> records = m_bench.journal().take("var");
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].field("name"), Value("LAYLOCKFADECTL"));
    EXPECT_EQ(records[0].field("old"), Value(50));
    EXPECT_EQ(records[0].field("new"), Value(-40));
}

TEST_F(SystemVariablesTest, ARefusedValueStaysAwayAndTheEventTellsTheFailure) {
    for (const int refused : {91, -91, 40000}) {
        EXPECT_FALSE(write(L"LAYLOCKFADECTL", refused)) << refused;
        EXPECT_EQ(events(), (Lines{"will change LAYLOCKFADECTL", "unchanged LAYLOCKFADECTL"}));
    }
    EXPECT_EQ(read(L"LAYLOCKFADECTL"), Value(50));
    EXPECT_TRUE(write(L"LAYLOCKFADECTL", 90));
    EXPECT_TRUE(write(L"LAYLOCKFADECTL", -90));
}

TEST_F(SystemVariablesTest, OnlyTheHostWritesReadOnlyVariablesAndValuesOutOfRange) {
    newDocument();
    EXPECT_FALSE(write(L"CleanScreenState", 1));
    EXPECT_TRUE(editor().set(L"CleanScreenState", 1));
    EXPECT_EQ(read(L"CleanScreenState"), Value(1));
    EXPECT_FALSE(write(L"LIGHTINGUNITS", 3));
    EXPECT_TRUE(editor().set(L"LIGHTINGUNITS", 3));
    EXPECT_EQ(read(L"LIGHTINGUNITS"), Value(3));
    EXPECT_FALSE(write(L"LAYLOCKFADECTL", 91));
    EXPECT_TRUE(editor().set(L"LAYLOCKFADECTL", 91));
    EXPECT_EQ(read(L"LAYLOCKFADECTL"), Value(91));
    EXPECT_FALSE(editor().set(L"CMDACTIVE", 1));
    EXPECT_FALSE(editor().set(L"LIGHTINGUNITS", "three"));
}

TEST_F(SystemVariablesTest, ADrawingsVariableBelongsToItsDocument) {
    Document& first = newDocument(L"A");
    write(L"LUNITS", 4);
    newDocument(L"B");
    EXPECT_EQ(read(L"LUNITS"), Value(2));
    editor().documents().activate(first);
    EXPECT_EQ(read(L"LUNITS"), Value(4));
}

TEST_F(SystemVariablesTest, ADrawingsVariableIsTakenBackByUndoAndAProfilesIsNot) {
    newDocument();
    write(L"DEFAULTLIGHTING", 0);
    write(L"LAYLOCKFADECTL", 20);
    editor().undo();
    EXPECT_EQ(read(L"DEFAULTLIGHTING"), Value(1));
    EXPECT_EQ(read(L"LAYLOCKFADECTL"), Value(20));
    editor().undo();
    EXPECT_EQ(read(L"LAYLOCKFADECTL"), Value(20));
}

TEST_F(SystemVariablesTest, ADocumentsVariableIsNoPartOfUndo) {
    newDocument(L"A");
    editor().set(L"BLOCKEDITOR", 1);
    editor().undo();
    EXPECT_EQ(read(L"BLOCKEDITOR"), Value(1));
    newDocument(L"B");
    EXPECT_EQ(read(L"BLOCKEDITOR"), Value(0));
}

TEST_F(SystemVariablesTest, UndoInADocumentBehindTellsNothingOfIt) {
    Document& first = newDocument(L"A");
    write(L"LUNITS", 4);
    newDocument(L"B");
    events();
    first.data().undoLog().undo();
    EXPECT_EQ(events(), Lines{});
    editor().documents().activate(first);
    EXPECT_EQ(read(L"LUNITS"), Value(2));
}

TEST_F(SystemVariablesTest, AnotherDocumentsOrViewportsValuesAreNoChanges) {
    newDocument(L"A");
    write(L"PERSPECTIVE", 1);
    events();
    newDocument(L"B");
    EXPECT_EQ(read(L"PERSPECTIVE"), Value(0));
    EXPECT_EQ(events(), Lines{});
    editor().set(L"TILEMODE", 0);
    EXPECT_EQ(events(), (Lines{"will change TILEMODE", "changed TILEMODE", "changed CVPORT"}));
}

TEST_F(SystemVariablesTest, AProfileThatBringsAnotherValueIsAChange) {
    write(L"LAYLOCKFADECTL", 20);
    events();
    m_bench.profiles().switchTo("Other");
    editor().pump();
    EXPECT_EQ(events(), Lines{"changed LAYLOCKFADECTL"});
    EXPECT_EQ(read(L"LAYLOCKFADECTL"), Value(50));
    EXPECT_EQ(read(L"CPROFILE"), Value("Other"));
    m_bench.profiles().switchTo("Default");
    EXPECT_EQ(read(L"LAYLOCKFADECTL"), Value(20));
}

TEST_F(SystemVariablesTest, WithoutADocumentADrawingsVariableIsTheProgramsAndARecordsIsNone) {
    EXPECT_TRUE(editor().set(L"LUNITS", 5));
    EXPECT_EQ(read(L"LUNITS"), Value(5));
    EXPECT_TRUE(read(L"TILEMODE").isNil());
    EXPECT_FALSE(editor().set(L"TILEMODE", 0));
    newDocument();
    EXPECT_EQ(read(L"LUNITS"), Value(2));
}

TEST_F(SystemVariablesTest, AWriteInsideAnEventIsToldOnItsOwn) {
    log().on("changed LAYLOCKFADECTL", [this] {
        if (read(L"LAYLOCKFADECTL") == Value(30))
            write(L"LAYLOCKFADECTL", 31);
    });
    EXPECT_TRUE(write(L"LAYLOCKFADECTL", 30));
    EXPECT_EQ(read(L"LAYLOCKFADECTL"), Value(31));
    EXPECT_EQ(events().size(), 4U);
}

}  // namespace workbench
