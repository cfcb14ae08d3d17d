#include "tests/layer/layer_state_fixture.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/window/frame.h>

namespace {

using support::Sent;

// The list

TEST_F(LayerStateTest, WithoutStatesItShowsNoStateASeparatorSaveAndManage) {
    EXPECT_EQ(rows(), withStates({}));
    EXPECT_EQ(selected(), 0);
}

TEST_F(LayerStateTest, StatesStandInTheHostsOrderBehindASeparator) {
    saveState("Second");
    saveState("First one");
    EXPECT_EQ(rows(), withStates({L"Second", L"First one"}));
    EXPECT_EQ(rows(second()), rows());
}

TEST_F(LayerStateTest, StateThatTheDrawingIsInIsSelected) {
    saveState("Plain");
    pick(2);
    takeSent();
    rebuild();
    EXPECT_EQ(selected(), 2);
}

TEST_F(LayerStateTest, DrawingThatWasChangedByHandIsInNoState) {
    saveState("Plain");
    pick(2);
    takeSent();
    setWallsOn(false);
    rebuild();
    EXPECT_EQ(selected(), 0);
    setWallsOn(true);
    rebuild();
    EXPECT_EQ(selected(), 2);
}

TEST_F(LayerStateTest, HostIsAskedForNamesLastStateViewportAndComparison) {
    saveState("Plain");
    pick(2);
    takeSent();
    takeJournal();
    send(1730, 0, reinterpret_cast<LPARAM>(L"LAYER"));
    const Calls made =
        takeCallLines({"CQrUiComboCtrl::ResetContent", "VxDbLayerStateManager::getLayerStateNames",
                       "VxDbLayerStateManager::getLastRestoredLayerState",
                       "vxedGetCurViewportObjectId", "VxDbLayerStateManager::compareLayerStateToDb",
                       "CQrUiComboCtrl::SetCurSel", "CWnd::EnableWindow"});
    EXPECT_EQ(made.size(), 6U);
    EXPECT_EQ(made[0], "CQrUiComboCtrl::ResetContent()");
    EXPECT_EQ(made[1], "VxDbLayerStateManager::getLayerStateNames(false, true)");
    EXPECT_EQ(made[2], "VxDbLayerStateManager::getLastRestoredLayerState()");
    EXPECT_EQ(made[3], "vxedGetCurViewportObjectId()");
    EXPECT_EQ(made[4].substr(0, 53), "VxDbLayerStateManager::compareLayerStateToDb(\"Plain\",");
    EXPECT_EQ(made[5], "CQrUiComboCtrl::SetCurSel(2)");
}

TEST_F(LayerStateTest, FailedNamesCountAsNone) {
    saveState("Plain");
    fail("VxDbLayerStateManager::getLayerStateNames", {}, 1);
    send(1730, 0, reinterpret_cast<LPARAM>(L"LAYER"));
    EXPECT_EQ(rows(), withStates({}));
    EXPECT_EQ(selected(), 0);
}

TEST_F(LayerStateTest, UnknownLastStateSelectsNoState) {
    saveState("Plain");
    pick(2);
    takeSent();
    fail("VxDbLayerStateManager::getLastRestoredLayerState", {}, 1);
    takeJournal();
    send(1730, 0, reinterpret_cast<LPARAM>(L"LAYER"));
    EXPECT_EQ(selected(), 0);
    EXPECT_EQ(takeCallLines({"VxDbLayerStateManager::compareLayerStateToDb"}), Calls{});
}

TEST_F(LayerStateTest, StateThatIsListedInAnotherSpellingLeavesTheSelectionEmpty) {
    saveState("Plain");
    pick(2);
    takeSent();
    setDb("states.Plain.name", "Renamed");
    setDb("states.Renamed.name", "PLAIN");
    rebuild();
    EXPECT_EQ(rows()[2], L"PLAIN");
    EXPECT_EQ(selected(), -1);
}

TEST_F(LayerStateTest, WithoutADatabaseThereAreNoSaveAndManageRows) {
    saveState("Plain");
    fail("VxDbHostApplicationServices::workingDatabase", {}, 1);
    send(1730, 0, reinterpret_cast<LPARAM>(L"LAYER"));
    EXPECT_EQ(rows(), (Texts{L"Unsaved Layer State", L"-"}));
    EXPECT_EQ(selected(), 0);
}

// Restoring

TEST_F(LayerStateTest, PickedStateIsRestoredTwiceOnceAsACommand) {
    saveState("My plain state");
    setWallsOn(false);
    pick(2);
    EXPECT_TRUE(wallsOn());
    EXPECT_EQ(takeSent(),
              (std::vector<Sent>{{"_-layer\nstate\nrestore\nMy plain state\n\n\n", "do_cmd"}}));
    EXPECT_EQ(selected(), 2);
    EXPECT_EQ(selected(second()), 2);
}

TEST_F(LayerStateTest, RestoreTakesItsStepsInThisOrder) {
    saveState("Plain");
    setWallsOn(false);
    takeJournal();
    pick(2);
    const Calls made =
        takeCallLines({"VxAxDocLock::VxAxDocLock", "vxedGetCurViewportObjectId",
                       "CQrUiRegistryAccess::Open", "VxDbDatabase::getSymbolTable",
                       "VxDbLayerStateManager::restoreLayerState", "CWaitCursor::CWaitCursor",
                       "CWaitCursor::~CWaitCursor", "do_cmd", "VxAxDocLock::~VxAxDocLock"});
    takeSent();
    Calls names;
    for (const std::string& call : made)
        names.push_back(call.substr(0, call.find('(')));
    ASSERT_GE(names.size(), 12U);
    const Calls expected{"VxAxDocLock::VxAxDocLock",  "vxedGetCurViewportObjectId",
                         "CQrUiRegistryAccess::Open", "CQrUiRegistryAccess::Open",
                         "CWaitCursor::CWaitCursor",  "VxDbDatabase::getSymbolTable",
                         "CWaitCursor::~CWaitCursor", "VxDbLayerStateManager::restoreLayerState",
                         "CWaitCursor::CWaitCursor",  "do_cmd"};
    EXPECT_EQ(Calls(names.begin(), names.begin() + 10), expected);
    EXPECT_EQ(names.back(), "VxAxDocLock::~VxAxDocLock");
}

TEST_F(LayerStateTest, RestoreGivesTheKeyboardBackToTheList) {
    saveState("Plain");
    pick(2);
    takeSent();
    EXPECT_TRUE(hasFocus(window()));
}

TEST_F(LayerStateTest, PickingNoStateOrNothingChangesNothing) {
    saveState("Plain");
    for (const int row : {0, -1}) {
        listOf(window()).SetCurSel(row);
        takeJournal();
        send(0xBC00 + WM_COMMAND, CBN_SELCHANGE << 16);
        EXPECT_EQ(takeCalls(), Calls{});
    }
    EXPECT_EQ(takeSent(), std::vector<Sent>{});
}

TEST_F(LayerStateTest, OtherNoticesAreIgnored) {
    saveState("Plain");
    listOf(window()).SetCurSel(2);
    takeJournal();
    for (const UINT notice : {CBN_DROPDOWN, CBN_CLOSEUP, CBN_SELENDOK}) {
        send(0xBC00 + WM_COMMAND, notice << 16);
        EXPECT_EQ(takeCalls(), Calls{});
    }
}

TEST_F(LayerStateTest, RestoreWithoutADatabaseStops) {
    saveState("Plain");
    listOf(window()).SetCurSel(2);
    fail("VxDbHostApplicationServices::workingDatabase", {}, 1);
    takeJournal();
    send(0xBC00 + WM_COMMAND, CBN_SELCHANGE << 16);
    EXPECT_EQ(takeCallLines({"VxAxDocLock::VxAxDocLock", "do_cmd"}), Calls{});
}

TEST_F(LayerStateTest, RestoreWithoutLayersSendsNoCommand) {
    saveState("Plain");
    fail("VxDbLayerTable::newIterator", {}, 1);
    pick(2);
    EXPECT_EQ(takeSent(), std::vector<Sent>{});
    EXPECT_EQ(selected(second()), 2);
}

class RestoredStatusTest : public LayerStateTest, public testing::WithParamInterface<int> {};

TEST_P(RestoredStatusTest, CountsAsRestored) {
    saveState("Plain");
    fail("VxDbLayerStateManager::restoreLayerState", GetParam(), 1);
    pick(2);
    EXPECT_EQ(takeSent().size(), 1U);
    EXPECT_EQ(selected(second()), 2);
}

INSTANTIATE_TEST_SUITE_P(Statuses, RestoredStatusTest, testing::Values(0, 162, 173, 384));

class GoneStatusTest : public LayerStateTest, public testing::WithParamInterface<int> {};

TEST_P(GoneStatusTest, TakesTheRowAwayAndClearsAllSelections) {
    saveState("Plain");
    fail("VxDbLayerStateManager::restoreLayerState", GetParam(), 1);
    pick(2);
    EXPECT_EQ(takeSent(), std::vector<Sent>{});
    Texts left = withStates({L"Plain"});
    left.erase(left.begin() + 2);
    EXPECT_EQ(rows(), left);
    EXPECT_EQ(rows(second()), withStates({L"Plain"}));
    EXPECT_EQ(selected(), -1);
    EXPECT_EQ(selected(second()), -1);
}

INSTANTIATE_TEST_SUITE_P(Statuses, GoneStatusTest, testing::Values(3, 22, 374));

class OtherStatusTest : public LayerStateTest, public testing::WithParamInterface<int> {};

TEST_P(OtherStatusTest, DoesNothing) {
    saveState("Plain");
    fail("VxDbLayerStateManager::restoreLayerState", GetParam(), 1);
    pick(2);
    EXPECT_EQ(takeSent(), std::vector<Sent>{});
    EXPECT_EQ(rows(), withStates({L"Plain"}));
    EXPECT_EQ(selected(), 2);
    EXPECT_EQ(selected(second()), 0);
}

INSTANTIATE_TEST_SUITE_P(Statuses, OtherStatusTest,
                         testing::Values(1, 2, 4, 21, 23, 161, 163, 172, 174, 373, 375, 383, 385));

TEST_F(LayerStateTest, StateDeletedBehindTheListsBackGoesWithItsRow) {
    saveState("Plain");
    setDb("states.Plain", {});
    pick(2);
    EXPECT_EQ(selected(), -1);
    EXPECT_EQ(rows().size(), 5U);
}

// The dialogs

TEST_F(LayerStateTest, LastRowOpensTheManagerUnderALock) {
    saveState("Plain");
    takeJournal();
    pick(5);
    const Calls made = takeCallLines({"VxAxDocLock::VxAxDocLock", "vxedLayerStateManagerDialog",
                                      "vxedLayerStateSaveDialog", "VxAxDocLock::~VxAxDocLock"});
    ASSERT_EQ(made.size(), 3U);
    EXPECT_EQ(made[1].substr(0, 27), "vxedLayerStateManagerDialog");
    EXPECT_EQ(selected(), 0) << "the lists are read anew";
    EXPECT_EQ(selected(second()), 0);
}

TEST_F(LayerStateTest, RowBeforeItSavesTheLayersAsAState) {
    answer("dialog", workbench::Value::Table{{"name", "Fresh"}});
    pick(2);
    EXPECT_EQ(rows(), withStates({L"Fresh"}));
    EXPECT_EQ(rows(second()), withStates({L"Fresh"}));
}

TEST_F(LayerStateTest, WithoutADocumentNoDialogOpens) {
    fail("VxApDocManager::curDocument", {}, 1);
    takeJournal();
    pick(3);
    EXPECT_EQ(takeCallLines({"VxAxDocLock::VxAxDocLock", "vxedLayerStateManagerDialog"}), Calls{});
}

// What it hears

class LayerCommandTest : public LayerStateTest,
                         public testing::WithParamInterface<const wchar_t*> {};

TEST_P(LayerCommandTest, ItsEndReadsTheStatesAnew) {
    takeJournal();
    send(1730, 0, reinterpret_cast<LPARAM>(GetParam()));
    EXPECT_EQ(takeCount("CQrUiComboCtrl::ResetContent"), 1U);
}

INSTANTIATE_TEST_SUITE_P(Commands, LayerCommandTest,
                         testing::Values(L"LAYERSTATE", L"LAYER", L"-LAYER", L"+LAYER", L"U",
                                         L"UNDO", L"REDO", L"layerstate", L"Undo"));

TEST_F(LayerStateTest, OtherCommandsConcernNobody) {
    takeJournal();
    for (const wchar_t* name : {L"LINE", L"LAYERS", L"-LAYERSTATE", L"MREDO", L""}) {
        send(1730, 0, reinterpret_cast<LPARAM>(name));
        EXPECT_EQ(takeCalls(), Calls{}) << name;
    }
}

TEST_F(LayerStateTest, DocumentToBeActivatedReadsItsStates) {
    saveState("Plain");
    newDocument(L"B");
    EXPECT_EQ(rows(), withStates({}));
    activateDocument(L"A");
    EXPECT_EQ(rows(), withStates({L"Plain"}));
}

TEST_F(LayerStateTest, RecordedDocumentToBeActivatedIsIgnored) {
    takeJournal();
    send(1724, 0, document(L"A"));
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(LayerStateTest, IsEnabledOnlyForTheRecordedAndCurrentDocument) {
    newDocument(L"B");
    activateDocument(L"A");
    send(1726, 0, document(L"B"));
    EXPECT_FALSE(isEnabled(window()));
    send(1726, 0, document(L"A"));
    EXPECT_TRUE(isEnabled(window()));
    send(1724, 0, document(L"B"));
    send(1726, 0, document(L"B"));
    EXPECT_FALSE(isEnabled(window())) << "recorded, but not the current one";
    send(1726, 0, document(L"A"));
    EXPECT_FALSE(isEnabled(window())) << "the current one, but not recorded";
}

TEST_F(LayerStateTest, LastDocumentsEndDisablesIt) {
    closeDocument(L"A");
    EXPECT_FALSE(isEnabled(window()));
    newDocument(L"B");
    EXPECT_TRUE(isEnabled(window()));
}

TEST_F(LayerStateTest, LastDocumentsEndKeepsTheRecordBecauseAFileNameIsSent) {
    send(1725, 0, reinterpret_cast<LPARAM>(L"A"));
    EXPECT_FALSE(isEnabled(window()));
    takeJournal();
    send(1724, 0, document(L"A"));
    EXPECT_EQ(takeCalls(), Calls{}) << "still the recorded one";
    send(1725, 0, document(L"A"));
    takeJournal();
    send(1724, 0, document(L"A"));
    EXPECT_EQ(takeCount("CQrUiComboCtrl::ResetContent"), 1U);
}

TEST_F(LayerStateTest, RebuildEnablesAListThatWasDisabled) {
    send(1725, 0, 0);
    rebuild();
    EXPECT_TRUE(isEnabled(window()));
}

// The window

TEST_F(LayerStateTest, HasATooltip) {
    EXPECT_EQ(tipOf(window()), stringOf(227));
}

}  // namespace
