#include "tests/nav3d/nav_fixture.h"

#include "workbench/toolkit/lookup.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/combo.h>
#include <hostapi/vxdashboard.h>

#include <algorithm>

namespace {

using support::Sent;

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

// The list

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
    notify(kDropDown);
    EXPECT_EQ(send(0x7101), 1);
    notify(kCloseUp);
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

TEST_F(ViewComboTest, CommandIsSentWithoutActivationAndEcho) {
    choose(L"Top");
    const auto commands = takeJournal("command");
    ASSERT_FALSE(commands.empty());
    EXPECT_EQ(commands.front().field("flag"), workbench::Value(2)) << "wrap up alone";
    takeSent();
}

TEST_F(ViewComboTest, CurrentViewEntrySendsNothing) {
    choose(L"Current View");
    EXPECT_TRUE(takeSent().empty());
}

TEST_F(ViewComboTest, SeparatorSendsNothing) {
    combo().SetCurSel(1);
    notify(kSelEndOk);
    EXPECT_TRUE(takeSent().empty());
}

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

TEST_F(ViewComboTest, MovedViewSelectsTheCurrentEntry) {
    combo().SetCurSel(2);
    ASSERT_EQ(selected(), L"Top");
    send(1736);
    EXPECT_EQ(selected(), L"Current View");
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
    const auto all = entries();
    EXPECT_EQ(std::find(all.begin(), all.end(), L"Garden") != all.end(), GetParam().second);
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
    clickIcon();
    EXPECT_EQ(takeCount("vxInternalZoomPrevious"), 0U);
}

TEST_F(ViewComboTest, BackGoesToThePreviousView) {
    moveView();
    rebuild();
    EXPECT_FALSE(backDisabled());
    clickIcon();
    EXPECT_EQ(takeCount("vxInternalZoomPrevious"), 1U);
    EXPECT_TRUE(backDisabled());
}

// While a navigation tool runs

TEST_F(ViewComboTest, ToolRestoresAPreset) {
    startTool();
    choose(L"Top");
    EXPECT_TRUE(takeSent().empty());
    EXPECT_NEAR(number("viewports.current.eye.x"), number("viewports.current.target.x"), 1.0e-9);
}

TEST_F(ViewComboTest, WithoutTheModuleAChoiceHasNoEffectAndStays) {
    startTool();
    bench().faults().hide("VxVmTools.qlx");
    choose(L"Top");
    EXPECT_TRUE(takeSent().empty());
    EXPECT_EQ(selected(), L"Top");
}

}  // namespace
