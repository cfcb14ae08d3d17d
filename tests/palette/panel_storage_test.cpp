#include "palette/panel_storage.h"

#include "palette/xml_node.h"
#include "tests/palette/palette_fixture.h"

#include <hostapi/vxut.h>
#include <hostapi/zorq/profiles.h>

namespace {

std::unique_ptr<PanelRecord> recordOf(const wchar_t* menuGroup, const wchar_t* id) {
    auto record = std::make_unique<PanelRecord>();
    record->id = id;
    record->menuGroup = menuGroup;
    return record;
}

class PanelStorageTest : public PaletteTest {
protected:
    PanelStorageTest() {
        m_records.push_back(recordOf(L"MAIN", L"A"));
        m_records.push_back(recordOf(L"MAIN", L"B"));
        m_records.push_back(recordOf(L"OTHER", L"A"));
        m_root.reset(
            vxProfileManagerPtr()->profileStorage(L"Default", true)->createNode(L"Dashboard"));
    }

    NodePtr addSet() { return add(m_root, L"CVxDaPanelSet"); }
    static NodePtr add(const NodePtr& parent, const wchar_t* name) {
        return NodePtr(VxUt::AddChildNode(parent.get(), name, VxUt::kElementNode));
    }
    static NodePtr addPanel(const NodePtr& set, const wchar_t* menuGroup, const wchar_t* id,
                            const wchar_t* visible, const wchar_t* name = L"CVxDaPanel") {
        NodePtr node = add(set, name);
        const auto write = [&node](const wchar_t* attribute, const wchar_t* value) {
            if (value != nullptr) {
                VxUt::SetAttributeValue(node.get(), attribute, VxString(value));
            }
        };
        write(L"ID", id);
        write(L"Visible", visible);
        write(L"MenuGroupName", menuGroup);
        return node;
    }
    std::vector<bool> readVisible() {
        readSavedPanels(m_root.get(), m_records);
        std::vector<bool> flags;
        for (const auto& record : m_records)
            flags.push_back(record->visible);
        return flags;
    }

    PanelRecords m_records;
    NodePtr m_root;
};

using Flags = std::vector<bool>;

TEST_F(PanelStorageTest, WithoutAnElementTheRecordsKeepWhatTheyHave) {
    EXPECT_EQ(readVisible(), (Flags{true, true, true}));
    const NodePtr set = addSet();
    EXPECT_EQ(readVisible(), (Flags{true, true, true}));
}

TEST_F(PanelStorageTest, WithoutTheSetsElementNothingElseIsRead) {
    forget();
    readSavedPanels(m_root.get(), m_records);
    EXPECT_EQ(takeLines(),
              std::vector<std::string>{"VxUt::GetChildNode(object, \"CVxDaPanelSet\")"});
}

/// A saved "Visible" and what it means.
struct VisibleRow {
    const wchar_t* saved;
    bool visible;
};

class VisibleTest : public PanelStorageTest, public testing::WithParamInterface<VisibleRow> {};

TEST_P(VisibleTest, IsReadAsAFlag) {
    const NodePtr set = addSet();
    addPanel(set, L"MAIN", L"B", GetParam().saved);
    EXPECT_EQ(readVisible(), (Flags{true, GetParam().visible, true}));
}

INSTANTIATE_TEST_SUITE_P(SavedValues, VisibleTest,
                         testing::Values(VisibleRow{L"0", false}, VisibleRow{L"1", true},
                                         VisibleRow{L"2", true}, VisibleRow{L"-1", true},
                                         VisibleRow{nullptr, true}, VisibleRow{L"no", true}));

TEST_F(PanelStorageTest, AnElementWithoutIdOrMenuGroupIsIgnoredAndTheFollowingOneCounts) {
    const NodePtr set = addSet();
    addPanel(set, L"MAIN", nullptr, L"0");
    addPanel(set, nullptr, L"A", L"0");
    addPanel(set, L"MAIN", L"B", L"0");
    EXPECT_EQ(readVisible(), (Flags{true, false, true}));
}

TEST_F(PanelStorageTest, AnElementWithoutIdOrMenuGroupIsNotThatOfARecordWithEmptyOnes) {
    m_records[0]->id.clear();
    m_records[1]->menuGroup.clear();
    const NodePtr set = addSet();
    addPanel(set, L"MAIN", nullptr, L"0");
    addPanel(set, nullptr, L"B", L"0");
    EXPECT_EQ(readVisible(), (Flags{true, true, true}));
}

TEST_F(PanelStorageTest, AnElementIsReadAttributeByAttributeAndEndsAtTheFirstThatIsMissing) {
    const NodePtr set = addSet();
    addPanel(set, L"MAIN", L"A", L"1");
    addPanel(set, nullptr, L"A", L"1");
    addPanel(set, L"MAIN", nullptr, L"1");
    addPanel(set, L"MAIN", L"A", L"1", L"Else");
    forget();
    readSavedPanels(m_root.get(), m_records);
    EXPECT_EQ(takeLines({"VxUt::GetChildNode", "VxUt::GetChildNodes", "VxUt::GetNodeName",
                         "VxUt::GetAttributeValue"}),
              (std::vector<std::string>{
                  "VxUt::GetChildNode(object, \"CVxDaPanelSet\")", "VxUt::GetChildNodes(object)",
                  "VxUt::GetNodeName(object)", "VxUt::GetAttributeValue(object, \"ID\")",
                  "VxUt::GetAttributeValue(object, \"MenuGroupName\")",
                  "VxUt::GetAttributeValue(object, \"Visible\")",
                  "VxUt::GetChildNode(object, \"ToolPaletteGroupName\")",
                  "VxUt::GetNodeName(object)", "VxUt::GetAttributeValue(object, \"ID\")",
                  "VxUt::GetAttributeValue(object, \"MenuGroupName\")", "VxUt::GetNodeName(object)",
                  "VxUt::GetAttributeValue(object, \"ID\")", "VxUt::GetNodeName(object)"}));
}

TEST_F(PanelStorageTest, AnElementCountsWhateverTheCaseOfItsName) {
    const NodePtr set = addSet();
    addPanel(set, L"MAIN", L"A", L"0", L"cvxdapanel");
    addPanel(set, L"MAIN", L"B", L"0", L"SomethingElse");
    EXPECT_EQ(readVisible(), (Flags{false, true, true}));
}

TEST_F(PanelStorageTest, OneIdInTwoMenuGroupsKeepsTwoStates) {
    const NodePtr set = addSet();
    addPanel(set, L"OTHER", L"A", L"0");
    EXPECT_EQ(readVisible(), (Flags{true, true, false}));
}

TEST_F(PanelStorageTest, PanelsAreFoundByTheirExactNamesOnly) {
    const NodePtr set = addSet();
    addPanel(set, L"main", L"A", L"0");
    addPanel(set, L"MAIN", L"a", L"0");
    addPanel(set, L"MAIN", L"Gone", L"0");
    EXPECT_EQ(readVisible(), (Flags{true, true, true}));
}

TEST_F(PanelStorageTest, OfTwoRecordsOfOneNameTheFirstTakesTheState) {
    m_records.push_back(recordOf(L"MAIN", L"A"));
    const NodePtr set = addSet();
    addPanel(set, L"MAIN", L"A", L"0");
    EXPECT_EQ(readVisible(), (Flags{false, true, true, true}));
}

TEST_F(PanelStorageTest, EachOfManyPanelsTakesItsOwnState) {
    constexpr int kPanels = 200;
    m_records.clear();
    const auto idOf = [](int panel) { return std::to_wstring(panel); };
    for (int panel = 0; panel < kPanels; ++panel)
        m_records.push_back(recordOf(panel % 2 == 0 ? L"EVEN" : L"ODD", idOf(panel).c_str()));
    const NodePtr set = addSet();
    Flags expected(kPanels);
    for (int panel = kPanels - 1; panel >= 0; --panel) {
        const bool visible = panel % 3 == 0;
        addPanel(set, panel % 2 == 0 ? L"EVEN" : L"ODD", idOf(panel).c_str(),
                 visible ? L"1" : L"0");
        expected[static_cast<std::size_t>(panel)] = visible;
    }
    EXPECT_EQ(readVisible(), expected);
}

TEST_F(PanelStorageTest, AGroupIsTakenOverAndAMissingOneEmptiesTheRecords) {
    const NodePtr set = addSet();
    const NodePtr panel = addPanel(set, L"MAIN", L"A", L"1");
    addPanel(set, L"MAIN", L"B", L"1");
    VxUtResString group;
    group.setText(L"Doors");
    group.Save(add(panel, L"ToolPaletteGroupName").get());
    m_records[1]->toolPaletteGroup.setText(L"Old");
    readSavedPanels(m_root.get(), m_records);
    EXPECT_EQ(m_records[0]->toolPaletteGroup.text(), L"Doors");
    EXPECT_EQ(m_records[1]->toolPaletteGroup.text(), L"");
}

TEST_F(PanelStorageTest, WritesAnElementForEachRecordInOrder) {
    m_records[1]->toolPaletteGroup.setText(L"Doors");
    ASSERT_TRUE(writeSavedPanels(m_root.get(), m_records));
    const NodePtr set(VxUt::GetChildNode(m_root.get(), L"CVxDaPanelSet"));
    std::vector<VxString> written;
    for (IXMLDOMNode* child : VxUt::GetChildNodes(set.get())) {
        const NodePtr node(child);
        VxString id;
        VxString menuGroup;
        VxString visible;
        VxUt::GetAttributeValue(child, L"ID", id);
        VxUt::GetAttributeValue(child, L"MenuGroupName", menuGroup);
        VxUt::GetAttributeValue(child, L"Visible", visible);
        const NodePtr groupNode(VxUt::GetChildNode(child, L"ToolPaletteGroupName"));
        VxUtResString group;
        group.Load(groupNode.get());
        written.push_back(VxUt::GetNodeName(child) + L" " + menuGroup + L"/" + id + L" " + visible +
                          L" " + group.text());
    }
    EXPECT_EQ(written, (std::vector<VxString>{L"CVxDaPanel MAIN/A 0 ", L"CVxDaPanel MAIN/B 0 Doors",
                                              L"CVxDaPanel OTHER/A 0 "}));
}

TEST_F(PanelStorageTest, ASetsElementThatIsRefusedEndsTheSaveAtOnce) {
    forget();
    fail("VxUt::AddChildNode");
    EXPECT_FALSE(writeSavedPanels(m_root.get(), m_records));
    EXPECT_EQ(takeLines(),
              std::vector<std::string>{"VxUt::AddChildNode(object, \"CVxDaPanelSet\", 1)"});
}

TEST_F(PanelStorageTest, APanelThatWasNeverMadeIsSavedAsHiddenWhateverItsFlagSays) {
    writeSavedPanels(m_root.get(), m_records);
    EXPECT_EQ(readVisible(), (Flags{false, false, false}));
}

TEST_F(PanelStorageTest, ARecordWithAnEmptyIdOrMenuGroupIsNotWritten) {
    m_records[0]->id.clear();
    m_records[1]->menuGroup.clear();
    ASSERT_TRUE(writeSavedPanels(m_root.get(), m_records));
    const NodePtr set(VxUt::GetChildNode(m_root.get(), L"CVxDaPanelSet"));
    std::size_t count = 0;
    for (IXMLDOMNode* child : VxUt::GetChildNodes(set.get())) {
        const NodePtr node(child);
        ++count;
    }
    EXPECT_EQ(count, 1U);
}

}  // namespace
