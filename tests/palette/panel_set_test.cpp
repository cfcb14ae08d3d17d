#include "palette/panel_set.h"

#include "core/broadcast_messages.h"
#include "palette/xml_node.h"
#include "tests/palette/palette_fixture.h"
#include "tests/support/allocation_counter.h"
#include "tests/support/answer_in_place.h"
#include "tests/support/window_tap.h"
#include "workbench/core/journal.h"
#include "workbench/profiles/profile_store.h"

#include <hostapi/vxut.h>

namespace {

using Names = std::vector<std::string>;

class PanelSetTest : public PaletteTest {
protected:
    /// Ends the dashboard's panels and builds them again, as the host's reload does.
    void rebuild() {
        dashboard().palette()->replacePanelSet();
        dashboard().loadPanels();
        settle();
    }
    void chooseGroup(const wchar_t* menuGroup, const wchar_t* id, int index) {
        menuOf(*panel(menuGroup, id));
        panel(menuGroup, id)->SendMessage(WM_COMMAND, static_cast<WPARAM>(53246 + index));
    }
    /// How many panels the saved tree holds; -1 without a tree.
    static int savedPanels() {
        const NodePtr node(
            vxProfileManagerPtr()->profileStorage(L"Default", false)->openNode(L"Dashboard"));
        const NodePtr set(VxUt::GetChildNode(node.get(), L"CVxDaPanelSet"));
        if (set == nullptr)
            return -1;
        int count = 0;
        for (IXMLDOMNode* child : VxUt::GetChildNodes(set.get())) {
            const NodePtr panel(child);
            ++count;
        }
        return count;
    }
};

TEST_F(PanelSetTest, SendsAMessageToAllControlsInTheOrderOfTheirCreation) {
    show();
    ASSERT_EQ(panelSet().controlWindows().size(), 2U);
    bench().journal().take();
    panelSet().sendToControls(WM_DA_DOC_BECAME_CURRENT, 0, 0);
    std::vector<std::string> receivers;
    for (const auto& record : bench().journal().take("message")) {
        const std::string line = toJsonLine(record);
        if (line.find("1726") != std::string::npos)
            receivers.push_back(line);
    }
    ASSERT_EQ(receivers.size(), 2U);
    EXPECT_NE(receivers[0].find("LayerLockTransparencySliderControl"), std::string::npos);
}

TEST_F(PanelSetTest, AMessageGoesToEachControlWithBothItsParameters) {
    show();
    const support::WindowTap first(bench().windows(), panelSet().controlWindows().at(0));
    const support::WindowTap second(bench().windows(), panelSet().controlWindows().at(1));
    panelSet().sendToControls(1736, 3, 4);
    panelSet().sendViewChanged();
    panelSet().sendIdleUpdate();
    for (const support::WindowTap* tap : {&first, &second}) {
        EXPECT_EQ(tap->of(1736), (support::TapMessages{{1736, 3, 4}, {1736, 0, 0}}));
        EXPECT_EQ(tap->of(867), (support::TapMessages{{867, 0, 0}}));
    }
}

TEST_F(PanelSetTest, AControlThatIsGoneIsPassedOver) {
    show();
    CWnd::FromHandle(panelSet().controlWindows()[0])->DestroyWindow();
    panelSet().sendToControls(WM_DA_DOC_BECAME_CURRENT, 0, 0);
    EXPECT_EQ(panelSet().controlWindows().size(), 2U);
}

TEST_F(PanelSetTest, ABroadcastTakesNoMemory) {
    show();
    bench().journal().setRecording(false);
    panelSet().sendIdleUpdate();
    const std::size_t before = support::allocationCount();
    panelSet().sendToControls(WM_DA_DOC_TO_BE_ACTIVATED, 0, 0);
    panelSet().sendIdleUpdate();
    EXPECT_EQ(support::allocationCount(), before);
}

TEST_F(PanelSetTest, ControlsOfAHiddenPanelStayInTheBroadcast) {
    show();
    panelSet().hidePanel(panel(L"MAIN", L"Draw"));
    EXPECT_EQ(panelSet().controlWindows().size(), 2U);
    EXPECT_TRUE(IsWindow(panelSet().controlWindows()[0]));
}

TEST_F(PanelSetTest, WhatIsSavedDecidesAtTheNextLoadWhatIsShown) {
    show();
    panelSet().togglePanel(53501);
    EXPECT_EQ(panelSet().saveToProfile(), 1);
    rebuild();
    EXPECT_EQ(shown(), (Names{"MAIN/Layers", "OTHER/Draw", "MAIN/Spare"}));
}

TEST_F(PanelSetTest, ALoadAnswersOneAndReadsMenuThenWorkspaceThenWhatIsSaved) {
    show();
    EXPECT_EQ(panelSet().load(), 1);
    EXPECT_EQ(
        takeLines({"vxedGetPanelSetData", "vxedGetWorkspacePanelData", "vxedGetVar",
                   "VxApProfileManager::profileStorage", "VxApProfileStorage::openNode",
                   "vxedGetPanelRefreshFromWS"}),
        (Names{"vxedGetPanelSetData()", "vxedGetWorkspacePanelData()", "vxedGetVar(\"CPROFILE\")",
               "VxApProfileManager::profileStorage(\"Default\", false)",
               "VxApProfileStorage::openNode(\"Dashboard\")", "vxedGetPanelRefreshFromWS()",
               "vxedGetVar(\"LAYLOCKFADECTL\")", "vxedGetVar(\"LTSCALE\")"}));
}

TEST_F(PanelSetTest, ASaveClearsTheNodeAndWritesEachPanelsAttributesInOrder) {
    show();
    panelSet().togglePanel(53501);
    chooseGroup(L"MAIN", L"Layers", 0);
    forget();
    EXPECT_EQ(panelSet().saveToProfile(), 1);
    EXPECT_EQ(takeLines(), (Names{"vxedGetVar(\"CPROFILE\")",
                                  "vxProfileManagerPtr()",
                                  "VxApProfileManager::profileStorage(\"Default\", true)",
                                  "VxApProfileStorage::createNode(\"Dashboard\")",
                                  "VxUt::RemoveChildren(object)",
                                  "IXMLDOMNode::QueryInterface()",
                                  "VxUt::AddChildNode(object, \"CVxDaPanelSet\", 1)",
                                  "VxUt::AddChildNode(object, \"CVxDaPanel\", 1)",
                                  "VxUt::SetAttributeValue(object, \"ID\", \"Layers\")",
                                  "VxUt::SetAttributeValue(object, \"Visible\", 1)",
                                  "VxUt::SetAttributeValue(object, \"MenuGroupName\", \"MAIN\")",
                                  "VxUt::AddChildNode(object, \"ToolPaletteGroupName\", 1)",
                                  "VxUtResString::Save(object, \"Doors\")",
                                  "VxUt::AddChildNode(object, \"CVxDaPanel\", 1)",
                                  "VxUt::SetAttributeValue(object, \"ID\", \"Draw\")",
                                  "VxUt::SetAttributeValue(object, \"Visible\", 0)",
                                  "VxUt::SetAttributeValue(object, \"MenuGroupName\", \"MAIN\")",
                                  "VxUt::AddChildNode(object, \"CVxDaPanel\", 1)",
                                  "VxUt::SetAttributeValue(object, \"ID\", \"Draw\")",
                                  "VxUt::SetAttributeValue(object, \"Visible\", 1)",
                                  "VxUt::SetAttributeValue(object, \"MenuGroupName\", \"OTHER\")",
                                  "VxUt::AddChildNode(object, \"CVxDaPanel\", 1)",
                                  "VxUt::SetAttributeValue(object, \"ID\", \"Spare\")",
                                  "VxUt::SetAttributeValue(object, \"Visible\", 1)",
                                  "VxUt::SetAttributeValue(object, \"MenuGroupName\", \"MAIN\")"}));
}

TEST_F(PanelSetTest, AnElementForTheGroupThatIsRefusedCostsThatGroupAlone) {
    show();
    chooseGroup(L"MAIN", L"Layers", 0);
    int elements = 0;
    const auto watch = bench().journal().addListener([&](const workbench::JournalRecord& record) {
        if (record.field("name") == workbench::Value("VxUt::AddChildNode") && ++elements == 2)
            bench().faults().fail("VxUt::AddChildNode", {}, 1);
    });
    EXPECT_EQ(panelSet().saveToProfile(), 1);
    EXPECT_EQ(savedPanels(), 4);
    rebuild();
    EXPECT_TRUE(panel(L"MAIN", L"Layers")->toolPaletteGroup().isEmpty());
}

TEST_F(PanelSetTest, WithoutTheHostsProfilesNothingIsSavedAndNothingRead) {
    show();
    fail("vxProfileManagerPtr");
    EXPECT_EQ(panelSet().loadFromProfile(), 1);
    fail("vxProfileManagerPtr");
    EXPECT_EQ(panelSet().saveToProfile(), 0);
}

TEST_F(PanelSetTest, LoadAndSaveOfANodeAnswerOne) {
    show();
    const NodePtr node(
        vxProfileManagerPtr()->profileStorage(L"Default", true)->createNode(L"Elsewhere"));
    EXPECT_EQ(panelSet().Load(node.get()), 1) << "without anything in it too";
    EXPECT_EQ(panelSet().Save(node.get()), 1);
    EXPECT_EQ(panelSet().Load(node.get()), 1);
}

TEST_F(PanelSetTest, TheToolPaletteGroupOfThePanelsMenuIsSaved) {
    show();
    chooseGroup(L"MAIN", L"Layers", 0);
    panelSet().saveToProfile();
    rebuild();
    EXPECT_EQ(panel(L"MAIN", L"Layers")->toolPaletteGroup().text(), L"Doors");
    EXPECT_TRUE(panel(L"MAIN", L"Draw")->toolPaletteGroup().isEmpty());
}

TEST_F(PanelSetTest, ReadingTheProfileAgainChangesThePanelsGroupAndNoWindow) {
    show();
    panelSet().saveToProfile();
    chooseGroup(L"MAIN", L"Layers", 0);
    panelSet().togglePanel(53500);
    EXPECT_EQ(panelSet().loadFromProfile(), 1);
    EXPECT_TRUE(panel(L"MAIN", L"Layers")->toolPaletteGroup().isEmpty());
    EXPECT_EQ(shown().size(), 3U);
}

TEST_F(PanelSetTest, ASecondSaveDoesNotDuplicateElements) {
    show();
    panelSet().saveToProfile();
    panelSet().saveToProfile();
    IXMLDOMNode* node =
        vxProfileManagerPtr()->profileStorage(L"Default", false)->openNode(L"Dashboard");
    const auto sets = VxUt::GetChildNodes(node);
    ASSERT_EQ(sets.size(), 1U);
    const auto panels = VxUt::GetChildNodes(sets[0]);
    EXPECT_EQ(panels.size(), 4U);
    for (IXMLDOMNode* child : panels)
        child->Release();
    sets[0]->Release();
    node->Release();
}

TEST_F(PanelSetTest, WithoutAProfilesNodeNothingIsSavedAndNothingFails) {
    show();
    EXPECT_EQ(panelSet().loadFromProfile(), 1);
    fail("vxedGetVar");
    EXPECT_EQ(panelSet().loadFromProfile(), 1);
    fail("vxedGetVar");
    EXPECT_EQ(panelSet().saveToProfile(), 0);
}

class ProfileReadFaultTest : public PanelSetTest,
                             public testing::WithParamInterface<const char*> {};

TEST_P(ProfileReadFaultTest, CountsAsNothingSaved) {
    show();
    chooseGroup(L"MAIN", L"Layers", 0);
    ASSERT_EQ(panelSet().saveToProfile(), 1);
    chooseGroup(L"MAIN", L"Layers", 2);
    const VxString chosen = panel(L"MAIN", L"Layers")->toolPaletteGroup().text();
    ASSERT_NE(chosen, L"Doors");
    fail(GetParam());
    EXPECT_EQ(panelSet().loadFromProfile(), 1);
    EXPECT_EQ(panel(L"MAIN", L"Layers")->toolPaletteGroup().text(), chosen);
    EXPECT_EQ(panelSet().loadFromProfile(), 1);
    EXPECT_EQ(panel(L"MAIN", L"Layers")->toolPaletteGroup().text(), L"Doors");
}

INSTANTIATE_TEST_SUITE_P(HostCalls, ProfileReadFaultTest,
                         testing::Values("VxApProfileManager::profileStorage",
                                         "VxApProfileStorage::openNode"));

TEST_F(PanelSetTest, ALoadWhoseSavedStateIsNoNodeStopsAndShowsNothing) {
    show();
    ASSERT_EQ(panelSet().saveToProfile(), 1);
    dashboard().palette()->replacePanelSet();
    fail("IXMLDOMNode::QueryInterface");
    EXPECT_EQ(panelSet().load(), 0);
    EXPECT_EQ(shown(), Names{});
    EXPECT_EQ(panelSet().load(), 1);
    EXPECT_EQ(shown().size(), 4U);
}

TEST_F(PanelSetTest, WithoutRecordsNothingIsSaved) {
    fail("vxedGetPanelSetData");
    show();
    EXPECT_EQ(panelSet().saveToProfile(), 0);
    EXPECT_EQ(callCount("vxedGetVar"), 0);
}

/// A host call of the save, and whether its failure raises an error.
struct SaveFault {
    const char* call;
    bool raises;
};

class SaveFaultTest : public PanelSetTest, public testing::WithParamInterface<SaveFault> {};

TEST_P(SaveFaultTest, EndsTheSaveWithZero) {
    show();
    chooseGroup(L"MAIN", L"Layers", 0);
    SetLastError(0);
    fail(GetParam().call, 100);
    EXPECT_EQ(panelSet().saveToProfile(), 0);
    EXPECT_TRUE(bench().faults().untaken().empty());
    bench().faults().unfail(GetParam().call);
    EXPECT_EQ(GetLastError() != 0, GetParam().raises);
}

INSTANTIATE_TEST_SUITE_P(HostCalls, SaveFaultTest,
                         testing::Values(SaveFault{"VxUt::RemoveChildren", true},
                                         SaveFault{"VxUt::SetAttributeValue", true},
                                         SaveFault{"VxUtResString::Save", true},
                                         SaveFault{"VxUt::AddChildNode", false},
                                         SaveFault{"VxApProfileManager::profileStorage", false},
                                         SaveFault{"VxApProfileStorage::createNode", false}));

TEST_F(PanelSetTest, ARefusedPanelElementEndsTheSaveWithZeroAndNoError) {
    show();
    SetLastError(0);
    failSecond("VxUt::AddChildNode");
    EXPECT_EQ(panelSet().saveToProfile(), 0);
    EXPECT_EQ(GetLastError(), 0U);
    EXPECT_EQ(savedPanels(), 0);
}

TEST_F(PanelSetTest, AnErrorRaisedByTheFirstOrTheSecondElementBecomesTheLastError) {
    constexpr int kFirstFailure = -5;
    constexpr int kSecondFailure = -6;
    show();
    bench().faults().fail("VxUt::AddChildNode", kFirstFailure, 1);
    EXPECT_EQ(panelSet().saveToProfile(), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(kFirstFailure));
    EXPECT_EQ(savedPanels(), -1);
    failSecond("VxUt::AddChildNode", kSecondFailure);
    EXPECT_EQ(panelSet().saveToProfile(), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(kSecondFailure));
    EXPECT_EQ(savedPanels(), 0);
}

TEST_F(PanelSetTest, LoadAndSaveOfNoNodeAnswerZero) {
    show();
    EXPECT_EQ(panelSet().Load(nullptr), 0);
    EXPECT_EQ(panelSet().Save(nullptr), 0);
}

TEST_F(PanelSetTest, ThePanelsMenuNeedsAMenu) {
    show();
    EXPECT_EQ(panelSet().buildPanelsMenu(nullptr), 0);
    CMenu menu;
    fail("CMenu::CreatePopupMenu");
    EXPECT_EQ(panelSet().buildPanelsMenu(&menu), 0);
    EXPECT_EQ(panelSet().buildPanelsMenu(&menu), 1);
    EXPECT_EQ(menu.GetMenuItemCount(), 4);
    EXPECT_EQ(panelSet().buildPanelsMenu(&menu), 1);
    EXPECT_EQ(menu.GetMenuItemCount(), 4);
}

TEST_F(PanelSetTest, ThePanelsMenuHasALineForEachRecordCheckedWhileItIsOnShow) {
    show();
    panelSet().togglePanel(53501);
    CMenu menu;
    forget();
    EXPECT_EQ(panelSet().buildPanelsMenu(&menu), 1);
    EXPECT_EQ(
        takeLines(),
        (Names{"CMenu::CreatePopupMenu()", "CMenu::AppendMenu(8, 53500, \"Layers\")",
               "CMenu::AppendMenu(0, 53501, \"Drawing\")", "CMenu::AppendMenu(8, 53502, \"House\")",
               "CMenu::AppendMenu(8, 53503, \"Spare\")"}));
}

TEST_F(PanelSetTest, ASizeOrMouseMessageHasTheToolkitsAnswer) {
    show();
    {
        const support::AnswerInPlace toolkit(bench().windows(), panelSet().m_hWnd, WM_SIZE, 7);
        EXPECT_EQ(panelSet().SendMessage(WM_SIZE), 7);
    }
    const support::AnswerInPlace toolkit(bench().windows(), panelSet().m_hWnd, WM_MOUSEMOVE, 8);
    EXPECT_EQ(panelSet().SendMessage(WM_MOUSEMOVE), 8);
}

TEST_F(PanelSetTest, TheMenuOfPanelsGoesWithTheWindow) {
    show();
    ASSERT_EQ(panelSet().buildPanelsMenu(&panelSet().panelsMenu()), 1);
    ASSERT_NE(panelSet().panelsMenu().IsMenu(), 0);
    panelSet().DestroyWindow();
    EXPECT_EQ(panelSet().panelsMenu().IsMenu(), 0);
}

TEST_F(PanelSetTest, ItemsOfOneIdOnTwoPanelsAreFoundTogether) {
    show();
    ASSERT_NE(panelSet().findToolPanelItems(L"ID_Line"), nullptr);
    EXPECT_EQ(panelSet().findToolPanelItems(L"ID_Line")->size(), 2U);
    EXPECT_EQ(panelSet().findToolPanelItems(L"id_line"), nullptr);
}

}  // namespace
