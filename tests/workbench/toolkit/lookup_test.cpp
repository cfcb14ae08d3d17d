#include "workbench/toolkit/lookup.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"

#include <hostapi/zorq/menu_data.h>

namespace workbench {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LookupTest : public ToolkitTest {};

TEST_F(LookupTest, SetsAndPanelsAreFoundFromWithin) {
    EXPECT_EQ(paletteSetAbove(windows(), m_toolPanel->m_hWnd), m_set.get());
    EXPECT_EQ(paletteSetAbove(windows(), m_set->m_hWnd), m_set.get());
    EXPECT_EQ(panelAbove(windows(), m_toolPanel->m_hWnd), &m_panel);
    EXPECT_EQ(panelAbove(windows(), m_panelSet.m_hWnd), nullptr);
    EXPECT_EQ(paletteSetAbove(windows(), frame().drawingView().m_hWnd), nullptr);
    EXPECT_EQ(paletteSetAbove(windows(), nullptr), nullptr);
}

TEST_F(LookupTest, PanelsAreFoundByTheirIdHiddenOrNot) {
    m_panel.ShowWindow(SW_HIDE);
    EXPECT_THAT(findPanels(windows(), L"PANEL"), ElementsAre(&m_panel));
    EXPECT_THAT(findPanels(windows(), L"panel"), IsEmpty());
}

TEST_F(LookupTest, ItemsOfOneIdComeInTreeOrderWithTheToolsOfFlyouts) {
    CQrUiToolPanelItem& flyout = addItem(kItemFlyout, L"ID_F");
    CQrUiToolPanelItem& tool = addTool(flyout, kItemButton, L"ID_A");
    CQrUiToolPanelItem& plain = addItem(kItemButton, L"ID_A");
    ListeningToolPanel control;
    control.Create(WS_CHILD | WS_VISIBLE, {0, 0, 50, 22}, m_toolPanel, 1, 0);
    CQrUiToolPanelItem& icon = addItemTo(control, kItemButton, L"ID_A");
    EXPECT_THAT(findItems(windows(), L"ID_A"), ElementsAre(&tool, &plain, &icon));
    EXPECT_THAT(findItems(windows(), L"ID_B"), IsEmpty());
    EXPECT_EQ(toolPanelOf(tool), m_toolPanel);
    EXPECT_EQ(toolPanelOf(icon), &control);
}

TEST_F(LookupTest, AnItemIsFoundByTheIdOfItsMenuDataToo) {
    VxToolPanelItemData data;
    data.id = L"LineTypeControl";
    CQrUiToolPanelItem& item = addItem(kItemButton, L"Line Type Control");
    QrUiSetToolPanelItemData(&item, &data);
    EXPECT_THAT(findItems(windows(), L"LineTypeControl"), ElementsAre(&item));
    EXPECT_THAT(findItems(windows(), L"Line Type Control"), ElementsAre(&item));
    EXPECT_EQ(viewOf(toolkit(), item).id, L"LineTypeControl");
}

TEST_F(LookupTest, AViewHoldsWhatAUserSees) {
    CQrUiToolPanelItem& flyout = addItem(kItemFlyout, L"ID_F");
    addTool(flyout, kItemButton, L"ID_1");
    flyout.SetName(L"Draw");
    flyout.SetState(kItemChecked | kItemHidden);
    flyout.SetImage(kItemSmallImage, toolkit().pictures().add("RCDATA_F", {1}));
    const ItemView view = viewOf(toolkit(), flyout);
    EXPECT_TRUE(view.checked);
    EXPECT_FALSE(view.disabled);
    EXPECT_TRUE(view.hidden);
    EXPECT_EQ(view.name, L"Draw");
    EXPECT_EQ(view.image, "RCDATA_F");
    EXPECT_EQ(view.tool, L"ID_1");
}

TEST_F(LookupTest, ItemsAndTheirPicturesEndWithTheirPanel) {
    CQrUiToolPanelItem& flyout = addItem(kItemFlyout, L"ID_F");
    addTool(addTool(flyout, kItemFlyout, L"ID_IN"), kItemButton, L"ID_1");
    flyout.SetImage(kItemSmallImage, toolkit().pictures().add("a", {1}));
    flyout.SetImage(kItemSmallImage, toolkit().pictures().add("b", {1}));
    flyout.SetImage(kItemLargeImage, toolkit().pictures().add("c", {1}));
    EXPECT_EQ(toolkit().liveItems(), 3);
    EXPECT_EQ(toolkit().pictures().liveCount(), 2U);
    {
        const CQrUiToolPanelItem dropped(m_toolPanel);
        EXPECT_EQ(toolkit().liveItems(), 4);
    }
    ListeningToolPanel control;
    addItemTo(control, kItemButton, L"")
        .SetImage(kItemSmallImage, toolkit().pictures().add("d", {1}));
    EXPECT_EQ(control.GetToolPanelItemCount(), 1);
    EXPECT_EQ(toolkit().liveItems(), 4);
}

TEST_F(LookupTest, AWindowlessPanelKeepsItsItems) {
    const CQrUiToolPanelItem& item = addItem(kItemButton, L"ID_A");
    m_set->DestroyWindow();
    EXPECT_EQ(m_toolPanel->GetToolPanelItem(L"ID_A"), &item);
    EXPECT_THAT(findItems(windows(), L"ID_A"), IsEmpty());
}

}  // namespace
}  // namespace workbench
