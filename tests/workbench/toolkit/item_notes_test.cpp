#include "workbench/toolkit/item_notes.h"

#include "tests/support/allocation_counter.h"
#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/toolkit/tool_panel_item_record.h"

#include <hostapi/zorq/menu_data.h>

namespace workbench {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ItemNotesTest : public ToolkitTest {
protected:
    ItemNotesTest() {
        m_panelSet.UpdateLayout();
        journal().take();
    }
    /// The untaken item records as "id field old new".
    std::vector<std::string> notes() {
        std::vector<std::string> lines;
        for (const JournalRecord& record : journal().take("item"))
            lines.push_back(record.field("id").asString() + " " + record.field("field").asString() +
                            " " + shown(record.field("old")) + " " + shown(record.field("new")));
        return lines;
    }
    static std::string shown(const Value& value) {
        if (value.isBool())
            return value.asBool() ? "true" : "false";
        return value.asString();
    }

    CQrUiToolPanelItem& m_item = addItem(kItemButton, L"ID_A");
    CQrUiToolPanelItem& m_flyout = addItem(kItemFlyout, L"ID_F");
    CQrUiToolPanelItem& m_first = addTool(m_flyout, kItemButton, L"ID_1");
    CQrUiToolPanelItem& m_second = addTool(m_flyout, kItemButton, L"ID_2");
};

TEST_F(ItemNotesTest, EachChangedBitIsNotedByItself) {
    m_item.SetState(kItemChecked | kItemDisabled);
    EXPECT_THAT(notes(), ElementsAre("ID_A disabled false true", "ID_A checked false true"));
    m_item.SetState(kItemDisabled | kItemHidden);
    EXPECT_THAT(notes(), ElementsAre("ID_A checked true false", "ID_A hidden false true"));
}

TEST_F(ItemNotesTest, WhatDoesNotDifferIsNotNoted) {
    m_item.SetState(0);
    m_item.SetName(L"");
    m_flyout.SetCurrentFlyoutTool(&m_first);
    EXPECT_THAT(notes(), IsEmpty());
}

TEST_F(ItemNotesTest, NamesToolsAndSmallPicturesAreNoted) {
    m_item.SetName(L"Line");
    m_flyout.SetCurrentFlyoutTool(&m_second);
    m_item.SetImage(kItemSmallImage, toolkit().pictures().add("RCDATA_A", {1}));
    m_item.SetImage(kItemLargeImage, toolkit().pictures().add("RCDATA_A", {1}));
    m_item.SetImage(kItemSmallImage, toolkit().pictures().add("b.png", {1}));
    EXPECT_THAT(notes(), ElementsAre("ID_A name  Line", "ID_F tool ID_1 ID_2",
                                     "ID_A image  RCDATA_A", "ID_A image RCDATA_A b.png"));
}

TEST_F(ItemNotesTest, AnItemThatNeverStoodOnAPanelIsNotSeen) {
    CQrUiToolPanelItem& fresh = addItem(kItemButton, L"ID_B");
    fresh.SetState(kItemChecked);
    EXPECT_THAT(notes(), IsEmpty());
    m_panelSet.UpdateLayout();
    fresh.SetState(0);
    EXPECT_THAT(notes(), ElementsAre("ID_B checked true false"));
}

TEST_F(ItemNotesTest, AToolIsSeenAlongWithItsFlyout) {
    m_second.SetState(kItemDisabled);
    EXPECT_THAT(notes(), ElementsAre("ID_2 disabled false true"));
}

TEST_F(ItemNotesTest, TheIdOfTheMenuDataCounts) {
    VxToolPanelItemData data;
    data.id = L"LineTypeControl";
    QrUiSetToolPanelItemData(&m_item, &data);
    m_item.SetName(L"x");
    EXPECT_THAT(notes(), ElementsAre("LineTypeControl name  x"));
    QrUiSetToolPanelItemData(&m_item, nullptr);
}

TEST_F(ItemNotesTest, AnUnchangedStateTakesNoMemory) {
    journal().setRecording(false);
    const std::size_t before = support::allocationCount();
    m_item.SetState(0);
    EXPECT_EQ(m_item.GetState(), 0U);
    m_item.Invalidate();
    EXPECT_EQ(support::allocationCount(), before);
}

}  // namespace
}  // namespace workbench
