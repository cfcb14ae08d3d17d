#include "palette/host_panels.h"

#include "tests/palette/palette_fixture.h"
#include "workbench/menu/menu_host.h"

namespace {

using Names = std::vector<VxString>;

class HostPanelsTest : public PaletteTest {
protected:
    static Names namesOf(const PanelRecords& records) {
        Names names;
        for (const auto& record : records)
            names.push_back(record->menuGroup + L"/" + record->id);
        return names;
    }

    PanelRecords m_records;
    VxDaPanelList m_list{{L"Before", L"MAIN"}};
};

TEST_F(HostPanelsTest, EachPanelOfTheMenuDataHasARecordInItsOrder) {
    EXPECT_TRUE(readPanelRecords(m_records));
    EXPECT_EQ(namesOf(m_records),
              (Names{L"MAIN/Draw", L"MAIN/Layers", L"OTHER/Draw", L"MAIN/Spare"}));
}

TEST_F(HostPanelsTest, RecordTakesWhatTheDataSayAndIsToBeShown) {
    ASSERT_TRUE(readPanelRecords(m_records));
    const PanelRecord& draw = *m_records.at(0);
    EXPECT_EQ(draw.id, L"Draw");
    EXPECT_EQ(draw.title, L"Drawing");
    EXPECT_EQ(draw.image, L"RCDATA_PANEL_DRAW");
    EXPECT_EQ(draw.menuGroup, L"MAIN");
    EXPECT_EQ(draw.toolPanelIds, (CStringArray{L"DrawTools", L"DrawControls"}));
    EXPECT_TRUE(draw.toolPaletteGroup.isEmpty());
    EXPECT_EQ(draw.panel, nullptr);
    EXPECT_TRUE(draw.visible);
}

TEST_F(HostPanelsTest, RecordsStandBehindThoseThatAreThere) {
    ASSERT_TRUE(readPanelRecords(m_records));
    ASSERT_TRUE(readPanelRecords(m_records));
    EXPECT_EQ(m_records.size(), 8U);
}

TEST_F(HostPanelsTest, WithoutMenuDataThereIsNoRecord) {
    fail("vxedGetPanelSetData");
    EXPECT_FALSE(readPanelRecords(m_records));
    EXPECT_TRUE(m_records.empty());
}

TEST_F(HostPanelsTest, WorkspacesListTakesThePlaceOfTheEarlierOne) {
    EXPECT_TRUE(readWorkspacePanels(m_list));
    EXPECT_EQ(m_list, (VxDaPanelList{{L"Layers", L"MAIN"}, {L"Draw", L"MAIN"}}));
    ASSERT_TRUE(bench().menu().switchWorkspace("House"));
    EXPECT_TRUE(readWorkspacePanels(m_list));
    EXPECT_EQ(m_list, (VxDaPanelList{{L"Draw", L"OTHER"}}));
}

TEST_F(HostPanelsTest, WithoutWorkspaceDataTheEarlierListStays) {
    fail("vxedGetWorkspacePanelData");
    EXPECT_FALSE(readWorkspacePanels(m_list));
    EXPECT_EQ(m_list, (VxDaPanelList{{L"Before", L"MAIN"}}));
}

}  // namespace
