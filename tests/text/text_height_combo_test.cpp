#include "tests/text/text_height_fixture.h"

#include <hostapi/vxdashboard.h>

namespace {

using workbench::Value;
using Calls = std::vector<std::string>;

// What it shows

TEST_F(TextHeightTest, NewDocumentWithAFreeHeightShowsTextsizeAsTheOneEntrySelected) {
    EXPECT_EQ(entries(), Texts{L"2.5000"});
    EXPECT_EQ(selected(), 0);
}

TEST_F(TextHeightTest, HeightFromTheCommandLineIsAppendedAndSelected) {
    type(L"TEXTSIZE\n5\n");
    EXPECT_EQ(entries(), (Texts{L"2.5000", L"5.0000"}));
    EXPECT_EQ(selected(), 1);
    EXPECT_EQ(entries(second()), (Texts{L"2.5000", L"5.0000"}));
    EXPECT_EQ(selected(second()), 1);
}

TEST_F(TextHeightTest, KnownHeightIsSelectedWithoutAnotherEntry) {
    set(L"TEXTSIZE", 5.0);
    set(L"TEXTSIZE", 2.5);
    EXPECT_EQ(entries(), (Texts{L"2.5000", L"5.0000"}));
    EXPECT_EQ(selected(), 0);
}

TEST_F(TextHeightTest, HeightsThatLookTheSameAreOneEntryOfTheOlderValue) {
    set(L"LUPREC", 1);
    set(L"TEXTSIZE", 5.0);
    set(L"TEXTSIZE", 5.04);
    EXPECT_EQ(entries(), (Texts{L"2.5", L"5.0"}));
    EXPECT_EQ(selected(), 1);
    set(L"LUPREC", 4);
    EXPECT_EQ(entries(), (Texts{L"2.5000", L"5.0000"}));
}

TEST_F(TextHeightTest, HeightIsRoundedToWhatIsShown) {
    set(L"LUPREC", 1);
    set(L"TEXTSIZE", 5.04);
    set(L"LUPREC", 4);
    EXPECT_EQ(entries(), (Texts{L"2.5000", L"5.0000"}));
}

TEST_F(TextHeightTest, HeightsThatComeToLookTheSameStayTwoEntriesTheFirstSelected) {
    set(L"TEXTSIZE", 5.01);
    set(L"TEXTSIZE", 5.02);
    EXPECT_EQ(selected(), 2);
    set(L"LUPREC", 1);
    EXPECT_EQ(entries(), (Texts{L"2.5", L"5.0", L"5.0"}));
    EXPECT_EQ(selected(), 1);
}

TEST_F(TextHeightTest, FollowsTheDrawingsUnits) {
    set(L"LUNITS", 4);
    EXPECT_EQ(entries(), Texts{L"2 1/2\""});
}

TEST_F(TextHeightTest, SelectionStaysEmptyIfTheHeightCannotBeWritten) {
    fail("vxdbRToS", {}, 1);
    tellOf(L"LUPREC");
    EXPECT_EQ(entries(), Texts{L"2.5000"});
    EXPECT_EQ(selected(), -1);
}

TEST_F(TextHeightTest, HeightThatCannotBeWrittenHasNoEntryButStays) {
    set(L"TEXTSIZE", 5.0);
    bench().faults().fail("vxdbRToS", {}, 1,
                          1);  // the text of the height to show is written before
    tellOf(L"LUPREC");
    EXPECT_EQ(entries(), Texts{L"5.0000"});
    tellOf(L"LUPREC");
    EXPECT_EQ(entries(), (Texts{L"2.5000", L"5.0000"}));
}

TEST_F(TextHeightTest, EntryKeepsItsHeightWhereAnotherHasNone) {
    set(L"TEXTSIZE", 5.0);
    set(L"TEXTSIZE", 7.0);
    bench().faults().fail("vxdbRToS", {}, 1, 1);
    tellOf(L"LUPREC");
    ASSERT_EQ(entries(), (Texts{L"5.0000", L"7.0000"}));
    pick(0);
    EXPECT_EQ(height(), 5.0);
}

// The steps

TEST_F(TextHeightTest, IsMadeWithItsWindowTooltipAndListInThisOrder) {
    takeJournal();
    rebuildControl();
    const Calls made = takeCallLines({"CQrUiComboCtrl::Create", "CQrToolTipCtrl::Create",
                                      "CQrToolTipCtrl::AddTool", "CQrUiComboCtrl::SetCurSel"});
    ASSERT_GE(made.size(), 4U);
    EXPECT_EQ(made[0].substr(0, 35), "CQrUiComboCtrl::Create(1345389091, ");
    EXPECT_EQ(made[1], "CQrUiComboCtrl::SetCurSel(0)");
    EXPECT_EQ(made[2].substr(0, 22), "CQrToolTipCtrl::Create");
    EXPECT_EQ(made[3].substr(0, 23), "CQrToolTipCtrl::AddTool");
}

TEST_F(TextHeightTest, ListIsEmptiedFromItsEndAndFilledAnew) {
    set(L"TEXTSIZE", 5.0);
    takeJournal();
    tellOf(L"LUPREC");
    EXPECT_EQ(takeCallLines({"CQrUiComboCtrl::DeleteItem", "CQrUiComboCtrl::SetCurSel", "vxdbRToS",
                             "vxedGetVar", "vxedSetVar"}),
              (Calls{"CQrUiComboCtrl::DeleteItem(1)", "CQrUiComboCtrl::DeleteItem(0)",
                     "vxdbRToS(5.000000, -1, -1)", "vxdbRToS(2.500000, -1, -1)",
                     "vxdbRToS(5.000000, -1, -1)", "CQrUiComboCtrl::SetCurSel(1)"}));
}

TEST_F(TextHeightTest, PickMovesAllListsAndWritesTheHeightUnderALock) {
    set(L"TEXTSIZE", 5.0);
    takeJournal();
    pick(0);
    EXPECT_EQ(height(), 2.5);
    EXPECT_EQ(selected(second()), 0);
    const Calls made = takeCallLines({"CQrUiComboCtrl::SetCurSel", "VxApDocManager::lockDocument",
                                      "vxedSetVar", "VxApDocManager::unlockDocument"});
    ASSERT_GE(made.size(), 5U);
    EXPECT_EQ(made[0], "CQrUiComboCtrl::SetCurSel(0)");
    EXPECT_EQ(made[1], "CQrUiComboCtrl::SetCurSel(0)");
    EXPECT_EQ(made[2].substr(0, 28), "VxApDocManager::lockDocument");
    EXPECT_EQ(made[3], "vxedSetVar(\"TEXTSIZE\", 2.500000)");
    EXPECT_EQ(made.back().substr(0, 30), "VxApDocManager::unlockDocument");
    EXPECT_EQ(entries(), (Texts{L"2.5000", L"5.0000"}));
}

TEST_F(TextHeightTest, SelectionOfNoEntryClearsAllListsAndWritesNothing) {
    listOf(window()).SetCurSel(-1);
    takeJournal();
    send(0xBC00 + WM_COMMAND, CBN_SELCHANGE << 16);
    EXPECT_EQ(takeCallLines({"CQrUiComboCtrl::SetCurSel", "vxedSetVar"}),
              (Calls{"CQrUiComboCtrl::SetCurSel(-1)", "CQrUiComboCtrl::SetCurSel(-1)"}));
}

TEST_F(TextHeightTest, OtherNoticesOfTheListAreIgnored) {
    set(L"TEXTSIZE", 5.0);
    takeJournal();
    for (const UINT notice : {CBN_DROPDOWN, CBN_CLOSEUP, CBN_SELENDOK}) {
        send(0xBC00 + WM_COMMAND, notice << 16);
        EXPECT_EQ(takeCalls(), Calls{}) << notice;
    }
}

// A style with a height of its own

TEST_F(TextHeightTest, FixedHeightShowsAloneAndKeepsTheListShut) {
    set(L"TEXTSIZE", 5.0);
    addStyle("Titles", 7.0);
    set(L"TEXTSTYLE", "Titles");
    EXPECT_EQ(entries(), Texts{L"7.0000"});
    EXPECT_EQ(selected(), 0);
    EXPECT_EQ(entries(second()), Texts{L"7.0000"});
    EXPECT_FALSE(opensByClick());
    EXPECT_TRUE(isEnabled(window()));
}

TEST_F(TextHeightTest, FixedHeightStaysSelectableUnderAStyleThatLeavesTheHeightFree) {
    addStyle("Titles", 7.0);
    set(L"TEXTSTYLE", "Titles");
    set(L"TEXTSTYLE", "Standard");
    const Texts all = entries();
    EXPECT_NE(std::find(all.begin(), all.end(), L"7.0000"), all.end());
    EXPECT_TRUE(opensByClick());
}

TEST_F(TextHeightTest, TextsizeUnderAFixedHeightComesInWithAFreeStyle) {
    addStyle("Titles", 7.0);
    set(L"TEXTSTYLE", "Titles");
    set(L"TEXTSIZE", 3.0);
    EXPECT_EQ(entries(), Texts{L"7.0000"});
    set(L"TEXTSTYLE", "Standard");
    const Texts all = entries();
    EXPECT_NE(std::find(all.begin(), all.end(), L"3.0000"), all.end());
    EXPECT_EQ(all.at(static_cast<std::size_t>(selected())), L"3.0000");
}

TEST_F(TextHeightTest, FixedHeightThatCannotBeWrittenShowsNothing) {
    addStyle("Titles", 7.0);
    set(L"TEXTSTYLE", "Titles");
    fail("vxdbRToS");
    tellOf(L"LUNITS");
    EXPECT_EQ(entries(), Texts{});
    bench().faults().unfail("vxdbRToS");
}

TEST_F(TextHeightTest, SelectionUnderAFixedHeightDoesNothing) {
    addStyle("Titles", 7.0);
    set(L"TEXTSTYLE", "Titles");
    takeJournal();
    send(0xBC00 + WM_COMMAND, CBN_SELCHANGE << 16);
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(TextHeightTest, EndOfTheStyleCommandBringsAChangedHeight) {
    setDb("textstyles.Standard.height", 9.0);
    EXPECT_EQ(entries(), Texts{L"2.5000"});
    tellCommandEnded(L"Style");
    EXPECT_EQ(entries(), Texts{L"9.0000"});
    EXPECT_EQ(entries(second()), Texts{L"2.5000"}) << "it has not heard of it";
}

TEST_F(TextHeightTest, UnknownStyleLeavesListAndModeAsTheyWere) {
    setDb("textstyles.Standard.name", "STANDARD");
    fail("VxDbTextStyleTable::newIterator", 1, 1);
    tellOf(L"TEXTSTYLE");
    EXPECT_EQ(entries(), Texts{L"2.5000"});
    EXPECT_TRUE(opensByClick());
}

// What it hears

TEST_F(TextHeightTest, OtherVariablesAndCommandsConcernNobody) {
    takeJournal();
    for (const wchar_t* name : {L"textsize", L"Textstyle", L"LUPRECS", L"CLAYER"}) {
        tellOf(name);
        EXPECT_EQ(takeCalls(), Calls{});
    }
    for (const wchar_t* name : {L"-STYLE", L"STYLES", L"TEXT"}) {
        tellCommandEnded(name);
        EXPECT_EQ(takeCalls(), Calls{});
    }
}

TEST_F(TextHeightTest, TextsizeIsReadAndOnlyThisListFilled) {
    set(L"TEXTSIZE", 5.0);
    takeJournal();
    tellOf(L"TEXTSIZE");
    EXPECT_EQ(
        takeCallLines({"vxedGetVar", "vxdbDisToF", "vxedSetVar", "CQrUiComboCtrl::SetCurSel"}),
        (Calls{"vxedGetVar(\"TEXTSIZE\")", "vxdbDisToF(\"5.0000\", -1)",
               "CQrUiComboCtrl::SetCurSel(1)"}));
}

TEST_F(TextHeightTest, TextsizeUnderAFixedHeightIsNotEvenRead) {
    addStyle("Titles", 7.0);
    set(L"TEXTSTYLE", "Titles");
    takeJournal();
    tellOf(L"TEXTSIZE");
    EXPECT_EQ(takeCalls(), Calls{});
}

class TextHeightFailureTest : public TextHeightTest,
                              public testing::WithParamInterface<const char*> {};

TEST_P(TextHeightFailureTest, LeavesTheHeightsAsTheyWere) {
    setDb("textstyles.Standard.name", "Standard");
    fail(GetParam(), {}, 1);
    set(L"TEXTSIZE", 5.0);
    const Texts firstOne = entries();
    EXPECT_EQ(std::count(firstOne.begin(), firstOne.end(), L"5.0000"), 0) << GetParam();
    EXPECT_EQ(std::count(firstOne.begin(), firstOne.end(), L"2.5000"), 1) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Reads, TextHeightFailureTest,
                         testing::Values("vxedGetVar", "vxdbDisToF", "vxdbRToS"));

// Documents

TEST_F(TextHeightTest, EachDocumentHasItsOwnHeights) {
    set(L"TEXTSIZE", 5.0);
    newDocument(L"B");
    EXPECT_EQ(entries(), Texts{L"2.5000"});
    EXPECT_EQ(entries(second()), Texts{L"2.5000"});
    activateDocument(L"A");
    EXPECT_EQ(entries(), (Texts{L"2.5000", L"5.0000"}));
    EXPECT_EQ(selected(), 1);
}

TEST_F(TextHeightTest, HeightsDieWithTheirDocument) {
    newDocument(L"B");
    set(L"TEXTSIZE", 5.0);
    activateDocument(L"A");
    closeDocument(L"B");
    EXPECT_EQ(entries(), Texts{L"2.5000"});
    newDocument(L"B");
    EXPECT_EQ(entries(), Texts{L"2.5000"});
}

TEST_F(TextHeightTest, WithoutADocumentTheListsAreEmptyAndClicksIgnored) {
    closeDocument(L"A");
    EXPECT_EQ(entries(), Texts{});
    EXPECT_EQ(entries(second()), Texts{});
    takeJournal();
    send(WM_LBUTTONDOWN);
    send(WM_LBUTTONDBLCLK);
    send(0xBC00 + WM_COMMAND, CBN_SELCHANGE << 16);
    tellOf(L"TEXTSIZE");
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(TextHeightTest, NoDocumentIsIgnored) {
    takeJournal();
    send(1726);
    send(1737);
    EXPECT_EQ(takeCalls(), Calls{});
    EXPECT_EQ(entries(), Texts{L"2.5000"});
}

TEST_F(TextHeightTest, CurrentDocumentToldAgainFillsThisListAlone) {
    takeJournal();
    send(1726, 0, document(L"A"));
    EXPECT_EQ(takeCallLines({"CQrUiComboCtrl::DeleteItem", "vxedGetVar"}),
              Calls{"CQrUiComboCtrl::DeleteItem(0)"});
}

TEST_F(TextHeightTest, UnknownDocumentsEndLeavesTheListsAlone) {
    newDocument(L"B");
    activateDocument(L"A");
    send(1737, 0, document(L"B"));
    takeJournal();
    send(1737, 0, document(L"B"));
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(TextHeightTest, HeightsOutliveTheControls) {
    set(L"TEXTSIZE", 5.0);
    rebuildControl();
    EXPECT_EQ(entries(), (Texts{L"2.5000", L"5.0000"}));
}

// The mouse

TEST_F(TextHeightTest, ClickOpensTheListOfHeights) {
    EXPECT_TRUE(opensByClick());
}

TEST_F(TextHeightTest, ShowsItsTooltip) {
    EXPECT_EQ(tipOf(window()), stringOf(4001));
}

}  // namespace
