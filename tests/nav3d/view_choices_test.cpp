#include "tests/nav3d/view_combo_fixture.h"
#include "workbench/gestures/list_gestures.h"

namespace {

using support::Sent;
using Calls = std::vector<std::string>;

// Choosing

TEST_F(ViewComboTest, ChoiceInTheRealListSendsItsCommandOnce) {
    ASSERT_TRUE(workbench::gestures::chooseFromList(bench().toolkit(), combo().m_hWnd, 3));
    settle();
    EXPECT_EQ(takeSent(), (std::vector<Sent>{{"'_-view _bottom ", "line"}}));
    EXPECT_EQ(send(0x7101), 0);
    EXPECT_EQ(selected(), L"Bottom");
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
    setDb("views.Garden", workbench::Value::Table{{"eye", workbench::Value::List{7.0, 8.0, 9.0}}});
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

}  // namespace
