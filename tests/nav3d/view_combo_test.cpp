#include "tests/nav3d/nav_fixture.h"

#include "workbench/gestures/key_gestures.h"
#include "workbench/gestures/list_gestures.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/background_painter.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/combo.h>
#include <hostapi/vxdashboard.h>

#include <gmock/gmock.h>

#include <algorithm>

namespace {

using support::Sent;
using testing::Contains;
using testing::Not;
using Calls = std::vector<std::string>;

/// The steps of a rebuild that can be seen from outside.
const std::vector<std::string_view> kRebuildSteps{
    "vxInternalGetCurVPAppliedView", "CQrUiComboCtrl::ResetContent", "CQrUiComboCtrl::SetCurSel",
    "vxInternalIsCurVPZoomUndoAvailable"};

constexpr UINT kSelEndOk = 9;
constexpr UINT kDropDown = 7;
constexpr UINT kCloseUp = 8;
constexpr UINT kComboId = 5007;

class ViewComboTest : public NavControlTest {
protected:
    void SetUp() override {
        showControl("3DNavViewComboCtrl");
        rebuild();
        takeJournal();
    }

    void rebuild() { announce(L"CVPORT"); }
    CQrUiComboCtrl& combo() {
        return *dynamic_cast<CQrUiComboCtrl*>(CWnd::FromHandle(part(window(), "combo")));
    }
    /// The entries' texts, "-" for a separator.
    std::vector<std::wstring> entries() {
        std::vector<std::wstring> all;
        for (int i = 0; i < combo().GetCount(); ++i)
            all.push_back(combo().GetItem(i)->separator ? L"-" : combo().GetItem(i)->text);
        return all;
    }
    std::wstring selected() {
        const QRUI_COMBO_CTRL_ITEM* entry = combo().GetItem(combo().GetCurSel());
        return entry == nullptr ? L"" : entry->text;
    }
    void notify(UINT code) {
        send(WM_COMMAND, code << 16 | kComboId, reinterpret_cast<LPARAM>(combo().m_hWnd));
    }
    /// Opens the list, chooses an entry of a text and closes it.
    void choose(const std::wstring& text) {
        notify(kDropDown);
        const auto all = entries();
        const auto found = std::find(all.begin(), all.end(), text);
        ASSERT_NE(found, all.end());
        combo().SetCurSel(static_cast<int>(found - all.begin()));
        notify(kSelEndOk);
        notify(kCloseUp);
    }
    /// Moves the view from outside.
    void moveView() {
        setDb("viewports.current.eye", workbench::Value::List{7.0, 8.0, 9.0});
        settle();
    }
    bool wasRebuilt() { return takeCount("CQrUiComboCtrl::ResetContent") != 0; }
    /// Shows another entry as selected, with nobody told.
    void select(const std::wstring& text) {
        const auto all = entries();
        const auto found = std::find(all.begin(), all.end(), text);
        ASSERT_NE(found, all.end());
        combo().SetCurSel(static_cast<int>(found - all.begin()));
        takeJournal();
    }
    bool isListed(const std::wstring& text) {
        const auto all = entries();
        return std::find(all.begin(), all.end(), text) != all.end();
    }
    void restore(const std::wstring& name) { type(L"-VIEW\nR\n" + name + L"\n"); }
    void hideDashboard() {
        paletteSet()->ShowWindow(SW_HIDE);
        takeJournal();
    }
    /// Clicks the back button whether it is on show or not.
    void clickBack() {
        dynamic_cast<CQrUiToolPanel*>(CWnd::FromHandle(window()))->OnLButtonClicked(0, {});
    }
    bool backDisabled() {
        return workbench::viewOf(bench().toolkit(), *item(L"TPB_3DNAV_COMBO")).disabled;
    }
};

std::vector<std::wstring> withPresets(std::vector<std::wstring> first) {
    for (const wchar_t* text :
         {L"Top", L"Bottom", L"Front", L"Back", L"Left", L"Right", L"SW Isometric", L"SE Isometric",
          L"NE Isometric", L"NW Isometric", L"-", L"New View...", L"View Manager..."})
        first.push_back(text);
    return first;
}

// Creation

TEST_F(ViewComboTest, PartsHaveTheirIdsTextsAndFont) {
    EXPECT_EQ(bench().windows().find(window())->id, 104);
    EXPECT_EQ(combo().GetDlgCtrlID(), 5007);
    const workbench::ItemView button =
        workbench::viewOf(bench().toolkit(), *item(L"TPB_3DNAV_COMBO"));
    EXPECT_EQ(button.image, "RCDATA_3DNAV_COMBO");
    EXPECT_EQ(button.name, stringOf(1238));
    EXPECT_EQ(tipOf(combo().m_hWnd), stringOf(1280));
    EXPECT_TRUE(hasThemeFont(combo().m_hWnd));
}

TEST_F(ViewComboTest, ListIsMadeAsWideAsTheControlAndBehindTheButton) {
    takeJournal();
    rebuildControl();
    const int width = firstRectOf(window()).Width();
    EXPECT_THAT(takeCallLines({"CQrUiComboCtrl::Create"}),
                Contains("CQrUiComboCtrl::Create(1345389091, " + std::to_string(width) +
                         ", 300, object, 5007)"));
    const CRect list = firstRectOf(combo().m_hWnd);
    EXPECT_EQ(list.left, 0);
    EXPECT_EQ(list.top, 0);
    const auto& row = *dynamic_cast<CQrUiToolPanel*>(CWnd::FromHandle(window()));
    ASSERT_EQ(row.GetToolPanelItemCount(), 2);
    EXPECT_EQ(row.GetToolPanelItem(0)->GetID(), L"TPB_3DNAV_COMBO");
    EXPECT_EQ(row.GetToolPanelItem(1)->GetControl(), combo().m_hWnd);
}

TEST_F(ViewComboTest, MessagesAreAnsweredZero) {
    EXPECT_EQ(send(1726), 0);
    EXPECT_EQ(send(1726, 0, 1), 0);
    EXPECT_EQ(send(1727, 1, reinterpret_cast<LPARAM>(L"CVPORT")), 0);
    EXPECT_EQ(send(1730, 0, reinterpret_cast<LPARAM>(L"VIEW")), 0);
    EXPECT_EQ(send(1731, 0, reinterpret_cast<LPARAM>(L"VIEW")), 0);
    EXPECT_EQ(send(1736), 0);
    select(L"Top");
    EXPECT_EQ(send(1736), 0);
    begin(L"LINE");
    EXPECT_EQ(send(1736), 0);
    finish();
    choose(L"Top");
    begin(L"LINE");
    choose(L"Bottom");
    EXPECT_EQ(send(1736), 0);
    finish();
    takeSent();
}

TEST_F(ViewComboTest, BackgroundIsWhite) {
    EXPECT_EQ(workbench::paintBackground(bench().windows(), window()), 0xffffffU);
    EXPECT_EQ(send(WM_ERASEBKGND, 0), 1) << "also without a context";
}

// The list

TEST_F(ViewComboTest, RebuildSelectsTheFirstEntryAndBringsTheButtonUpToDate) {
    takeJournal();
    tellOf(L"CVPORT");
    EXPECT_EQ(takeCallLines(kRebuildSteps),
              (Calls{"vxInternalGetCurVPAppliedView()", "CQrUiComboCtrl::ResetContent()",
                     "CQrUiComboCtrl::SetCurSel(0)", "vxInternalIsCurVPZoomUndoAvailable()"}));
}

TEST_F(ViewComboTest, RebuildSelectsTheAppliedViewBehindTheFirstEntry) {
    addView("Attic");
    addView("Garden");
    restore(L"Garden");
    takeJournal();
    tellOf(L"CVPORT");
    EXPECT_EQ(takeCallLines(kRebuildSteps),
              (Calls{"vxInternalGetCurVPAppliedView()", "CQrUiComboCtrl::ResetContent()",
                     "CQrUiComboCtrl::SetCurSel(0)", "CQrUiComboCtrl::SetCurSel(1)",
                     "vxInternalIsCurVPZoomUndoAvailable()"}));
    EXPECT_EQ(selected(), L"Garden");
}

TEST_F(ViewComboTest, AppliedViewThatHasGoneLeavesTheFirstEntrySelected) {
    addView("Attic");
    addView("Garden");
    restore(L"Garden");
    setDb("views.Garden", workbench::Value());
    if (vxInternalGetCurVPAppliedView().isNull())
        GTEST_SKIP() << "the host takes the mark off";
    tellOf(L"CVPORT");
    EXPECT_EQ(entries(), withPresets({L"Attic", L"-"}));
    EXPECT_EQ(selected(), L"Attic");
}

TEST_F(ViewComboTest, EachVariableOfTheListRebuildsItAndNoOther) {
    for (const wchar_t* name : {L"CVPORT", L"TILEMODE", L"DASHBOARDSTATE"}) {
        takeJournal();
        tellOf(name);
        EXPECT_TRUE(wasRebuilt()) << workbench::toUtf8(name);
    }
    for (const wchar_t* name : {L"cvport", L"PERSPECTIVE", L"LUPREC"}) {
        takeJournal();
        tellOf(name);
        EXPECT_EQ(takeCalls(), Calls{}) << workbench::toUtf8(name);
    }
}

TEST_F(ViewComboTest, DocumentThatBecameCurrentRebuildsIt) {
    takeJournal();
    send(1726, 0, 0);
    EXPECT_EQ(takeCalls(), Calls{}) << "there is no document";
    newDocument(L"B");
    EXPECT_TRUE(wasRebuilt());
}

TEST_F(ViewComboTest, HiddenDashboardIsNotRebuilt) {
    hideDashboard();
    tellOf(L"CVPORT");
    send(1726, 0, 1);
    send(1730, 0, reinterpret_cast<LPARAM>(L"VIEW"));
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(ViewComboTest, PicturesAreLoadedSmallForThePresetsAlone) {
    takeJournal();
    tellOf(L"CVPORT");
    Calls expected;
    for (const char* view :
         {"TOP", "BOTTOM", "FRONT", "BACK", "LEFT", "RIGHT", "SW", "SE", "NE", "NW"}) {
        expected.push_back(std::string("QrUiLoadImageFromResource(object, \"RCDATA_3DNAV_VIEW_") +
                           view + "\", 16, -1)");
    }
    EXPECT_EQ(takeCallLines({"QrUiLoadImageFromResource"}), expected);
}

TEST_F(ViewComboTest, TextsAreThoseOfTheResources) {
    const UINT numbers[] = {1237, 0,    1211, 1212, 1213, 1214, 1215, 1216,
                            1217, 1218, 1220, 1219, 0,    1221, 1222};
    ASSERT_EQ(combo().GetCount(), static_cast<int>(std::size(numbers)));
    for (int i = 0; i < combo().GetCount(); ++i) {
        const QRUI_COMBO_CTRL_ITEM& entry = *combo().GetItem(i);
        EXPECT_EQ(entry.separator, numbers[i] == 0 ? 1 : 0);
        EXPECT_EQ(entry.text, numbers[i] == 0 ? L"" : stringOf(numbers[i]));
    }
}

TEST_F(ViewComboTest, DrawingsViewsAreReadFromTheStartWithoutErasedOnesAndClosedAgain) {
    addView("Attic");
    addView("Garden");
    takeJournal();
    tellOf(L"CVPORT");
    const std::string read = "VxDbViewTableIterator::getRecord(0)";
    EXPECT_EQ(takeCallLines({"VxDbDatabase::getSymbolTable", "VxDbViewTable::newIterator",
                             "VxDbViewTableIterator::getRecord", "VxDbSymbolTableRecord::getName",
                             "VxDbObject::close"}),
              (Calls{"VxDbDatabase::getSymbolTable(0)", "VxDbViewTable::newIterator(true, true)",
                     "VxDbObject::close()", read, "VxDbSymbolTableRecord::getName()",
                     "VxDbObject::close()", read, "VxDbSymbolTableRecord::getName()",
                     "VxDbObject::close()"}));
}

class UnreadableViewTest : public ViewComboTest, public testing::WithParamInterface<const char*> {};

TEST_P(UnreadableViewTest, IsLeftOutAndTheOthersStay) {
    addView("Attic");
    addView("Garden");
    fail(GetParam(), {}, 1);
    takeJournal();
    tellOf(L"CVPORT");
    EXPECT_NE(isListed(L"Attic"), isListed(L"Garden"));
    const Calls made = takeCalls();
    EXPECT_EQ(std::count(made.begin(), made.end(), "VxDbObject::close"),
              GetParam() == std::string("VxDbSymbolTableRecord::getName") ? 3 : 2);
}

INSTANTIATE_TEST_SUITE_P(Calls, UnreadableViewTest,
                         testing::Values("VxDbViewTableIterator::getRecordId",
                                         "VxDbViewTableIterator::getRecord",
                                         "VxDbSymbolTableRecord::getName"));

TEST_F(ViewComboTest, TableThatCannotBeWalkedIsClosedAndGivesNoNamedViews) {
    addView("Garden");
    fail("VxDbViewTable::newIterator");
    takeJournal();
    tellOf(L"CVPORT");
    EXPECT_EQ(entries(), withPresets({L"Current View", L"-"}));
    EXPECT_EQ(takeCount("VxDbObject::close"), 1U);
}

TEST_F(ViewComboTest, WithoutADatabaseThereAreNoNamedViews) {
    addView("Garden");
    fail("vxdbHostApplicationServices");
    tellOf(L"CVPORT");
    EXPECT_EQ(entries(), withPresets({L"Current View", L"-"}));
}

TEST_F(ViewComboTest, DrawingWithoutNamedViewsShowsTheCurrentViewAndThePresets) {
    EXPECT_EQ(entries(), withPresets({L"Current View", L"-"}));
    EXPECT_EQ(selected(), L"Current View");
}

TEST_F(ViewComboTest, NamedViewsStandInTheUsersOrder) {
    addView("garden");
    addView("Attic");
    addView("Élan");
    rebuild();
    EXPECT_EQ(entries(),
              withPresets({L"Current View", L"-", L"Attic", L"\u00c9lan", L"garden", L"-"}));
}

TEST_F(ViewComboTest, AppliedViewIsSelectedAndTheCurrentEntryIsGone) {
    addView("Garden");
    type(L"-VIEW\nR\nGarden\n");
    EXPECT_EQ(entries(), withPresets({L"Garden", L"-"}));
    EXPECT_EQ(selected(), L"Garden");
}

TEST_F(ViewComboTest, UnopenableTableGivesAListWithoutNamedViews) {
    addView("Garden");
    fail("VxDbDatabase::getSymbolTable");
    rebuild();
    EXPECT_EQ(entries(), withPresets({L"Current View", L"-"}));
}

TEST_F(ViewComboTest, PresetsHaveTheirPictures) {
    for (int i = 0; i < combo().GetCount(); ++i) {
        const QRUI_COMBO_CTRL_ITEM* entry = combo().GetItem(i);
        const bool preset = i >= 2 && i < 12;
        EXPECT_EQ(entry->image != nullptr, preset) << i;
    }
}

TEST_F(ViewComboTest, OpeningBringsANewViewAndKeepsTheSelection) {
    addView("Garden");
    notify(kDropDown);
    EXPECT_EQ(selected(), L"Current View");
    const auto all = entries();
    EXPECT_NE(std::find(all.begin(), all.end(), L"Garden"), all.end());
    notify(kCloseUp);
}

TEST_F(ViewComboTest, OpeningAfterTheSelectedViewHasGoneLeavesTheRebuildsSelection) {
    addView("Garden");
    addView("Attic");
    rebuild();
    combo().SetCurSel(3);
    ASSERT_EQ(selected(), L"Garden");
    setDb("views.Garden", workbench::Value());
    notify(kDropDown);
    EXPECT_EQ(selected(), L"Current View");
    notify(kCloseUp);
}

TEST_F(ViewComboTest, OpenListIsToldToTheToolkit) {
    EXPECT_EQ(send(0x7101), 0);
    ASSERT_TRUE(workbench::gestures::openList(bench().toolkit(), combo().m_hWnd));
    EXPECT_EQ(send(0x7101), 1);
    ASSERT_TRUE(workbench::gestures::closeList(bench().toolkit(), combo().m_hWnd));
    EXPECT_EQ(send(0x7101), 0);
}

TEST_F(ViewComboTest, ChoiceInTheRealListSendsItsCommandOnce) {
    ASSERT_TRUE(workbench::gestures::chooseFromList(bench().toolkit(), combo().m_hWnd, 3));
    settle();
    EXPECT_EQ(takeSent(), (std::vector<Sent>{{"'_-view _bottom ", "line"}}));
    EXPECT_EQ(send(0x7101), 0);
    EXPECT_EQ(selected(), L"Bottom");
}

TEST_F(ViewComboTest, OpeningKeepsTheFirstNamedViewThoughAnotherIsApplied) {
    addView("Attic");
    addView("Garden");
    restore(L"Garden");
    select(L"Attic");
    notify(kDropDown);
    EXPECT_EQ(selected(), L"Attic");
    notify(kCloseUp);
}

TEST_F(ViewComboTest, OpeningKeepsAPresetThoughAViewIsApplied) {
    addView("Garden");
    restore(L"Garden");
    select(L"NW Isometric");
    notify(kDropDown);
    EXPECT_EQ(selected(), L"NW Isometric");
    notify(kCloseUp);
}

TEST_F(ViewComboTest, OpeningWithoutASelectionShowsTheCurrentView) {
    combo().SetCurSel(-1);
    notify(kDropDown);
    EXPECT_EQ(selected(), L"Current View");
    notify(kCloseUp);
}

TEST_F(ViewComboTest, OpeningWithoutASelectionLeavesAnAppliedViewSelected) {
    addView("Attic");
    addView("Garden");
    restore(L"Garden");
    combo().SetCurSel(-1);
    notify(kDropDown);
    EXPECT_EQ(selected(), L"Garden");
    notify(kCloseUp);
}

TEST_F(ViewComboTest, NoticesOfOtherPartsAndOtherNoticesAreIgnored) {
    select(L"Top");
    for (const UINT code : {kDropDown, kCloseUp, kSelEndOk})
        send(WM_COMMAND, code << 16 | 4711, reinterpret_cast<LPARAM>(combo().m_hWnd));
    notify(1);
    EXPECT_EQ(takeCalls(), Calls{});
    EXPECT_EQ(send(0x7101), 0);
}

// Choosing

struct PresetCase {
    const wchar_t* entry;
    const char* command;
};
class PresetTest : public ViewComboTest, public testing::WithParamInterface<PresetCase> {};

TEST_P(PresetTest, SendsItsTransparentCommand) {
    choose(GetParam().entry);
    EXPECT_EQ(takeSent(), (std::vector<Sent>{{GetParam().command, "line"}}));
}

INSTANTIATE_TEST_SUITE_P(
    Entries, PresetTest,
    testing::Values(PresetCase{L"Top", "'_-view _top "}, PresetCase{L"Bottom", "'_-view _bottom "},
                    PresetCase{L"Front", "'_-view _front "}, PresetCase{L"Back", "'_-view _back "},
                    PresetCase{L"Left", "'_-view _left "}, PresetCase{L"Right", "'_-view _right "},
                    PresetCase{L"SW Isometric", "'_-view _swiso "},
                    PresetCase{L"SE Isometric", "'_-view _seiso "},
                    PresetCase{L"NE Isometric", "'_-view _neiso "},
                    PresetCase{L"NW Isometric", "'_-view _nwiso "}));

TEST_F(ViewComboTest, NamedViewIsSentAsItStandsWithANewLine) {
    addView("South east corner");
    choose(L"South east corner");
    EXPECT_EQ(takeSent(), (std::vector<Sent>{{"'_-view _restore South east corner\n", "line"}}));
    EXPECT_EQ(selected(), L"South east corner");
}

TEST_F(ViewComboTest, CommandIsSentToTheCurrentDocumentWithoutActivationFocusAndEcho) {
    choose(L"Top");
    EXPECT_EQ(takeCallLines({"VxApDocManager::curDocument", "VxApDocManager::mdiActiveDocument",
                             "VxApDocManager::sendToCommandLine", "CWnd::SetFocus"}),
              (Calls{"VxApDocManager::curDocument()",
                     "VxApDocManager::sendToCommandLine(object, \"'_-view _top \", false, true, "
                     "false)"}));
    takeSent();
}

TEST_F(ViewComboTest, WithoutTheHostsDocumentsAChoiceSendsNothing) {
    select(L"Top");
    fail("vxDocManagerPtr", {}, 1);
    notify(kSelEndOk);
    EXPECT_TRUE(takeSent().empty());
}

TEST_F(ViewComboTest, ViewThatCannotBeNamedSendsNothing) {
    addView("Garden");
    rebuild();
    select(L"Garden");
    fail("VxDbSymbolTableRecord::getName");
    takeJournal();
    notify(kSelEndOk);
    EXPECT_TRUE(takeSent().empty());
    EXPECT_EQ(takeCount("VxDbObject::close"), 1U);
}

TEST_F(ViewComboTest, NewViewIsSentAndItsEndIsFollowed) {
    begin(L"LINE");
    choose(L"New View...");
    select(L"Top");
    fail("vxedCommandActive");
    send(1736);
    EXPECT_EQ(selected(), L"Current View") << "no restore of the list's own is under way";
    bench().faults().unfail("vxedCommandActive");
    EXPECT_EQ(takeSent(), (std::vector<Sent>{{"'_newview ", "line"}}));
    finish();
    takeSent();
}

TEST_F(ViewComboTest, ManagersEndIsFollowedToo) {
    begin(L"LINE");
    choose(L"View Manager...");
    select(L"Top");
    fail("vxedCommandActive");
    send(1736);
    EXPECT_EQ(selected(), L"Current View");
    bench().faults().unfail("vxedCommandActive");
    finish();
    takeSent();
}

/// What can be selected and is no choice.
class NoChoiceTest : public ViewComboTest, public testing::WithParamInterface<int> {};

TEST_P(NoChoiceTest, SendsNothingAndBeginsNoRestore) {
    combo().SetCurSel(GetParam());
    takeJournal();
    notify(kSelEndOk);
    EXPECT_EQ(takeCalls(), Calls{});
    EXPECT_TRUE(takeSent().empty());
    select(L"Top");
    send(1736);
    EXPECT_EQ(selected(), L"Current View") << "the view is followed as before";
}

// The current-view entry, the separator behind it, none.
INSTANTIATE_TEST_SUITE_P(Indices, NoChoiceTest, testing::Values(0, 1, -1));

TEST_F(ViewComboTest, ViewThatCannotBeOpenedSendsNothing) {
    addView("Garden");
    notify(kDropDown);
    combo().SetCurSel(2);
    ASSERT_EQ(selected(), L"Garden");
    fail("vxdbOpenObject");
    notify(kSelEndOk);
    EXPECT_TRUE(takeSent().empty());
    bench().faults().unfail("vxdbOpenObject");
}

TEST_F(ViewComboTest, ManagerIsSentBehindTwoCancels) {
    bench().answers().queue("dialog", workbench::Value());
    choose(L"View Manager...");
    EXPECT_EQ(takeSent(), (std::vector<Sent>{{"\x03\x03_view ", "line"}}));
}

// Following the view

TEST_F(ViewComboTest, RestoreByTheListKeepsItsSelection) {
    addView("Garden");
    choose(L"Garden");
    takeSent();
    EXPECT_EQ(selected(), L"Garden");
    moveView();
    EXPECT_EQ(selected(), L"Current View") << "the command's end has cleared the mark";
}

TEST_F(ViewComboTest, OwnRestoreIsNotFollowedUntilItsCommandEnds) {
    begin(L"LINE");
    choose(L"Top");
    fail("vxedCommandActive");
    takeJournal();
    send(1736);
    EXPECT_EQ(selected(), L"Top");
    EXPECT_EQ(takeCalls(), Calls{}) << "the host is not even asked";
    for (const UINT over : {1730, 1731}) {
        addView(over == 1730 ? "Attic" : "Garden");
        takeJournal();
        send(over, 0, reinterpret_cast<LPARAM>(L"VIEW"));
        EXPECT_EQ(wasRebuilt(), over == 1731) << "the first end is that of the restore";
    }
    select(L"Top");
    send(1736);
    EXPECT_EQ(selected(), L"Current View");
    bench().faults().unfail("vxedCommandActive");
    finish();
    takeSent();
}

TEST_F(ViewComboTest, MovedViewSelectsTheCurrentEntryWithoutARebuild) {
    select(L"Top");
    send(1736);
    EXPECT_EQ(selected(), L"Current View");
    EXPECT_EQ(takeCallLines({"CQrUiComboCtrl::ResetContent", "CQrUiComboCtrl::SetCurSel"}),
              Calls{"CQrUiComboCtrl::SetCurSel(0)"});
}

TEST_F(ViewComboTest, MovedViewLeavesTheCurrentEntryASeparatorAndNoSelectionAlone) {
    for (const int index : {0, 1, -1}) {
        combo().SetCurSel(index);
        takeJournal();
        send(1736);
        EXPECT_EQ(combo().GetCurSel(), index);
        EXPECT_EQ(takeCallLines({"CQrUiComboCtrl::ResetContent", "CQrUiComboCtrl::SetCurSel"}),
                  Calls{});
    }
}

TEST_F(ViewComboTest, ViewMovedAwayFromANamedOneBringsTheCurrentEntry) {
    addView("Garden");
    restore(L"Garden");
    ASSERT_EQ(entries(), withPresets({L"Garden", L"-"}));
    moveView();
    EXPECT_EQ(entries(), withPresets({L"Current View", L"-", L"Garden", L"-"}));
    EXPECT_EQ(selected(), L"Current View");
}

TEST_F(ViewComboTest, ViewThatIsStillTheAppliedOneStaysSelected) {
    addView("Garden");
    restore(L"Garden");
    takeJournal();
    send(1736);
    EXPECT_TRUE(wasRebuilt());
    EXPECT_EQ(selected(), L"Garden");
}

TEST_F(ViewComboTest, MarkOfAPendingRebuildGoesAlsoWhileTheDashboardIsHidden) {
    select(L"Top");
    begin(L"LINE");
    send(1736);
    hideDashboard();
    finish();
    EXPECT_FALSE(wasRebuilt());
    paletteSet()->ShowWindow(SW_SHOW);
    begin(L"LINE");
    takeJournal();
    finish();
    EXPECT_FALSE(wasRebuilt()) << "nothing is pending any more";
}

TEST_F(ViewComboTest, PendingRebuildLeavesTheMarkOfAnOwnRestore) {
    begin(L"LINE");
    choose(L"Top");
    exported<SetForce3DNavUpdateFn>("setForce3DNavUpdate")(true);
    send(1736);
    exported<SetForce3DNavUpdateFn>("setForce3DNavUpdate")(false);
    takeJournal();
    send(1731, 0, reinterpret_cast<LPARAM>(L"LINE"));
    EXPECT_TRUE(wasRebuilt()) << "what was pending";
    send(1730, 0, reinterpret_cast<LPARAM>(L"VIEW"));
    EXPECT_FALSE(wasRebuilt()) << "the end of the restore";
    send(1730, 0, reinterpret_cast<LPARAM>(L"VIEW"));
    EXPECT_TRUE(wasRebuilt());
    finish();
    takeSent();
}

TEST_F(ViewComboTest, ViewThatAToolMovesIsFollowedWhileItsCommandRuns) {
    type(L"3DORBIT\n");
    select(L"Top");
    send(1736);
    EXPECT_EQ(selected(), L"Current View");
    type(L"\x1b");
}

TEST_F(ViewComboTest, ViewThatMovesDuringACommandRebuildsAtItsEnd) {
    combo().SetCurSel(2);
    begin(L"LINE");
    addView("Garden");
    send(1736);
    EXPECT_EQ(selected(), L"Top");
    finish();
    EXPECT_EQ(selected(), L"Current View");
    const auto all = entries();
    EXPECT_NE(std::find(all.begin(), all.end(), L"Garden"), all.end());
}

class ViewCommandEndTest : public ViewComboTest,
                           public testing::WithParamInterface<std::pair<const wchar_t*, bool>> {};

TEST_P(ViewCommandEndTest, RebuildsForTheViewCommandsAlone) {
    addView("Garden");
    bench().editor().reactors().commandEnded(GetParam().first);
    EXPECT_EQ(isListed(L"Garden"), GetParam().second);
}

TEST_P(ViewCommandEndTest, CancelledOneCountsLikeOneThatEnded) {
    addView("Garden");
    send(1731, 0, reinterpret_cast<LPARAM>(GetParam().first));
    EXPECT_EQ(isListed(L"Garden"), GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(Names, ViewCommandEndTest,
                         testing::Values(std::pair{L"VIEW", true}, std::pair{L"NEWVIEW", true},
                                         std::pair{L"-VIEW", true}, std::pair{L"view", false},
                                         std::pair{L"ZOOM", false}));

TEST_F(ViewComboTest, ForcedUpdateFollowsItsOwnRestoresToo) {
    begin(L"LINE");
    choose(L"Top");
    send(1736);
    EXPECT_EQ(selected(), L"Top");
    exported<SetForce3DNavUpdateFn>("setForce3DNavUpdate")(true);
    bench().faults().fail("vxedCommandActive");
    send(1736);
    EXPECT_EQ(selected(), L"Current View");
    bench().faults().unfail("vxedCommandActive");
    exported<SetForce3DNavUpdateFn>("setForce3DNavUpdate")(false);
    finish();
    takeSent();
}

// Back

TEST_F(ViewComboTest, BackIsDisabledWithoutAnEarlierView) {
    EXPECT_TRUE(backDisabled());
    takeJournal();
    clickBack();
    EXPECT_EQ(takeCalls(), Calls{"vxInternalIsCurVPZoomUndoAvailable"});
}

TEST_F(ViewComboTest, BackGoesToThePreviousView) {
    moveView();
    rebuild();
    EXPECT_FALSE(backDisabled());
    clickIcon();
    EXPECT_EQ(takeCount("vxInternalZoomPrevious"), 1U);
    EXPECT_TRUE(backDisabled());
}

/// The list alone, whose calls of the host are therefore all that are made.
class BackTest : public ViewComboTest, public testing::WithParamInterface<bool> {
protected:
    void SetUp() override {
        useMenuOf("3DNavViewComboCtrl");
        showControl("3DNavViewComboCtrl");
        moveView();
        rebuild();
        takeJournal();
    }
    const std::vector<std::string_view> m_steps{"vxInternalIsCurVPZoomUndoAvailable",
                                                "VxAxDocLock::VxAxDocLock",
                                                "GetKeyState",
                                                "vxInternalZoomBack",
                                                "vxInternalZoomPrevious",
                                                "CQrUiComboCtrl::ResetContent",
                                                "VxAxDocLock::~VxAxDocLock"};
};

TEST_P(BackTest, StepsUnderALockAndThenRebuilds) {
    const bool shift = GetParam();
    workbench::gestures::holdKey(bench().toolkit(), "shift", shift);
    // What the step sets off in the list comes from a viewport, whose event is not wanted here.
    bench().editor().documents().current()->viewHistory().setQuiet(true);
    clickBack();
    EXPECT_EQ(takeCallLines(m_steps),
              (Calls{"vxInternalIsCurVPZoomUndoAvailable()", "VxAxDocLock::VxAxDocLock(object, 1)",
                     "GetKeyState(16)", shift ? "vxInternalZoomBack()" : "vxInternalZoomPrevious()",
                     "CQrUiComboCtrl::ResetContent()", "vxInternalIsCurVPZoomUndoAvailable()",
                     "VxAxDocLock::~VxAxDocLock()"}));
    workbench::gestures::holdKey(bench().toolkit(), "shift", false);
}

TEST_P(BackTest, HiddenDashboardIsNotRebuiltBehindTheStep) {
    const bool shift = GetParam();
    workbench::gestures::holdKey(bench().toolkit(), "shift", shift);
    hideDashboard();
    bench().editor().documents().current()->viewHistory().setQuiet(true);
    clickBack();
    EXPECT_EQ(takeCallLines(m_steps),
              (Calls{"vxInternalIsCurVPZoomUndoAvailable()", "VxAxDocLock::VxAxDocLock(object, 1)",
                     "GetKeyState(16)", shift ? "vxInternalZoomBack()" : "vxInternalZoomPrevious()",
                     "VxAxDocLock::~VxAxDocLock()"}));
    workbench::gestures::holdKey(bench().toolkit(), "shift", false);
}

INSTANTIATE_TEST_SUITE_P(Shift, BackTest, testing::Bool());

TEST_F(ViewComboTest, ButtonIsTouchedOnlyWhenItsStateChanges) {
    takeJournal();
    rebuild();
    EXPECT_TRUE(takeJournal("item").empty());
    moveView();
    rebuild();
    EXPECT_EQ(takeJournal("item").size(), 1U);
    rebuild();
    EXPECT_TRUE(takeJournal("item").empty());
}

TEST_F(ViewComboTest, ButtonOfAHiddenDashboardIsMadeDisabled) {
    moveView();
    hideDashboard();
    rebuildControl();
    EXPECT_TRUE(backDisabled()) << "whatever the viewport has behind it";
}

TEST_F(ViewComboTest, ButtonsRealStateComesWithTheCreationsSecondRebuild) {
    moveView();
    takeJournal();
    rebuildControl();
    EXPECT_EQ(takeCount("CQrUiComboCtrl::ResetContent"), 2U);
    EXPECT_FALSE(backDisabled());
}

// While a navigation tool runs

TEST_F(ViewComboTest, ToolRestoresAPreset) {
    startTool();
    choose(L"Top");
    EXPECT_TRUE(takeSent().empty());
    EXPECT_NEAR(number("viewports.current.eye.x"), number("viewports.current.target.x"), 1.0e-9);
}

struct ToolChoiceCase {
    const wchar_t* entry;
    const char* function;  // null: nothing is called
};
class ToolChoiceTest : public ViewComboTest, public testing::WithParamInterface<ToolChoiceCase> {
protected:
    Calls roadToTheModule() {
        return takeCallLines({"vxrxServiceIsRegistered", "GetModuleHandle", "GetProcAddress",
                              "VxApDocManager::sendToCommandLine"});
    }
};

TEST_P(ToolChoiceTest, AsksTheModuleForItsFunctionAndSendsNothing) {
    addView("Garden");
    rebuild();
    startTool();
    select(GetParam().entry);
    notify(kSelEndOk);
    const Calls expected = GetParam().function == nullptr
                               ? Calls{}
                               : Calls{"vxrxServiceIsRegistered(\"ZorqVmTools\")",
                                       "GetModuleHandle(\"VxVmTools.qlx\")",
                                       std::string("GetProcAddress(\"VxVmTools.qlx\", \"") +
                                           GetParam().function + "\")"};
    EXPECT_EQ(roadToTheModule(), expected);
    EXPECT_TRUE(takeSent().empty());
}

INSTANTIATE_TEST_SUITE_P(Entries, ToolChoiceTest,
                         testing::Values(ToolChoiceCase{L"Top", "navRestorePresetView"},
                                         ToolChoiceCase{L"NW Isometric", "navRestorePresetView"},
                                         ToolChoiceCase{L"Garden", "navRestoreNamedView"},
                                         ToolChoiceCase{L"New View...", nullptr},
                                         ToolChoiceCase{L"View Manager...", nullptr}));

TEST_F(ViewComboTest, ToolRestoresANamedView) {
    setDb("viewports.current.eye", workbench::Value::List{7.0, 8.0, 9.0});
    addView("Garden");
    setDb("viewports.current.eye", workbench::Value::List{1.0, 1.0, 1.0});
    rebuild();
    startTool();
    choose(L"Garden");
    EXPECT_DOUBLE_EQ(number("viewports.current.eye.x"), 7.0);
    EXPECT_EQ(selected(), L"Garden");
}

TEST_F(ViewComboTest, RestoreByTheToolIsNotFollowedUntilACommandEnds) {
    startTool();
    choose(L"Top");
    moveView();
    EXPECT_EQ(selected(), L"Top");
    stopTool();
    send(1730, 0, reinterpret_cast<LPARAM>(L"3DORBIT"));
    moveView();
    send(1736);
    EXPECT_EQ(selected(), L"Current View");
}

class MissingToolModuleTest : public ViewComboTest, public testing::WithParamInterface<bool> {};

TEST_P(MissingToolModuleTest, LeavesAChoiceWithoutEffectAndSelected) {
    startTool();
    const workbench::Value eye = db("viewports.current.eye");
    if (GetParam())
        bench().faults().hide("VxVmTools.qlx");
    else
        bench().faults().hide("VxVmTools.qlx", "navRestorePresetView");
    choose(L"Front");
    EXPECT_TRUE(takeSent().empty());
    EXPECT_EQ(selected(), L"Front");
    EXPECT_EQ(db("viewports.current.eye"), eye);
}

INSTANTIATE_TEST_SUITE_P(WholeOrSymbol, MissingToolModuleTest, testing::Bool());

// The force flag

TEST_F(ViewComboTest, ForceFlagIsOffAgainAfterTheModuleWasLoadedAnew) {
    exported<SetForce3DNavUpdateFn>("setForce3DNavUpdate")(true);
    ASSERT_TRUE(unload());
    closeDocument(L"A");
    showControl("3DNavViewComboCtrl");
    begin(L"LINE");
    choose(L"Top");
    fail("vxedCommandActive");
    send(1736);
    EXPECT_EQ(selected(), L"Top");
    bench().faults().unfail("vxedCommandActive");
    finish();
    takeSent();
}

}  // namespace
