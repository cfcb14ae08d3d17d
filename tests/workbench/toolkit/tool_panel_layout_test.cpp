#include "workbench/toolkit/tool_panel_layout.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"

namespace workbench {
namespace {

using Kind = RowItem::Kind;

class ToolPanelLayoutTest : public ToolkitTest {};

TEST_F(ToolPanelLayoutTest, EachItemTypeHasItsKind) {
    constexpr int kHostIcon = 6;
    const std::pair<int, Kind> types[] = {
        {kItemButton, Kind::Button},     {kItemFlyout, Kind::Flyout},
        {kItemControl, Kind::Control},   {kItemSeparator, Kind::Separator},
        {kItemRowBreak, Kind::RowBreak}, {kHostIcon, Kind::Button},
    };
    for (const auto& [type, kind] : types)
        addItem(type, L"ID");
    const std::vector<RowItem> items = rowItemsOf(*m_toolPanel);
    ASSERT_EQ(items.size(), std::size(types));
    for (std::size_t index = 0; index < items.size(); ++index)
        EXPECT_EQ(items[index].kind, types[index].second) << index;
}

TEST_F(ToolPanelLayoutTest, TheHiddenBitIsTaken) {
    addItem(kItemButton, L"ID").SetState(kItemHidden | kItemChecked);
    EXPECT_TRUE(rowItemsOf(*m_toolPanel).front().hidden);
}

TEST_F(ToolPanelLayoutTest, ControlsAreAsHighAsTheirKind) {
    CQrUiProgSliderCtrl slider;
    CQrUiInputEditCtrl edit;
    CWnd plain;
    slider.Create(WS_CHILD | WS_VISIBLE, {0, 0, 50, 99}, m_toolPanel, 1, 2);
    edit.Create(WS_CHILD | WS_VISIBLE, {0, 0, 50, 99}, m_toolPanel, 2, 0);
    EXPECT_EQ(controlHeight(windows(), addControlTo(*m_toolPanel, slider), 100), 16);
    EXPECT_EQ(controlHeight(windows(), addControlTo(*m_toolPanel, edit), 100), 20);
    EXPECT_EQ(controlHeight(windows(), addControlTo(*m_toolPanel, plain), 100), 0);
}

TEST_F(ToolPanelLayoutTest, AControlInAControlIsAsHighAsItsRows) {
    ListeningToolPanel control;
    control.Create(WS_CHILD | WS_VISIBLE, {0, 0, 50, 22}, m_toolPanel, 1, 0);
    addItemTo(control, kItemButton, L"");
    addItemTo(control, kItemRowBreak, L"");
    addItemTo(control, kItemButton, L"");
    EXPECT_EQ(controlHeight(windows(), addControlTo(*m_toolPanel, control), 100), 46);
}

TEST_F(ToolPanelLayoutTest, AControlIsAskedOnceWhetherItSharesItsRow) {
    ListeningToolPanel control;
    control.Create(WS_CHILD | WS_VISIBLE, {0, 0, 50, 22}, m_toolPanel, 1, 0);
    control.answers[WM_QRUI_ROW_QUERY] = [](WPARAM, LPARAM) { return LRESULT{0}; };
    addControlTo(*m_toolPanel, control);
    EXPECT_FALSE(rowItemsOf(*m_toolPanel).front().alone) << "not asked yet";
    EXPECT_TRUE(askControls(toolkit(), *m_toolPanel));
    EXPECT_TRUE(askControls(toolkit(), *m_toolPanel));
    EXPECT_EQ(control.of(WM_QRUI_ROW_QUERY), (std::vector<Received>{{WM_QRUI_ROW_QUERY, 0, 0}}));
    EXPECT_TRUE(rowItemsOf(*m_toolPanel).front().alone);
}

TEST_F(ToolPanelLayoutTest, OnlyCustomControlsAreAsked) {
    CQrUiProgSliderCtrl slider;
    slider.Create(WS_CHILD | WS_VISIBLE, {0, 0, 50, 99}, m_toolPanel, 1, 2);
    addControlTo(*m_toolPanel, slider);
    journal().take();
    EXPECT_TRUE(askControls(toolkit(), *m_toolPanel));
    EXPECT_FALSE(rowItemsOf(*m_toolPanel).front().alone);
}

TEST_F(ToolPanelLayoutTest, APanelThatEndsWhileItsControlIsAskedIsNotLaidOut) {
    ListeningToolPanel control;
    control.Create(WS_CHILD | WS_VISIBLE, {0, 0, 50, 22}, m_toolPanel, 1, 0);
    addControlTo(*m_toolPanel, control);
    control.answers[WM_QRUI_ROW_QUERY] = [this](WPARAM, LPARAM) {
        m_toolPanel->DestroyWindow();
        return LRESULT{1};
    };
    EXPECT_EQ(m_toolPanel->UpdateLayout(1), 1);
    EXPECT_EQ(m_toolPanel->m_hWnd, nullptr);
}

TEST_F(ToolPanelLayoutTest, AnItemWithoutAWindowOnlyGetsItsRectangle) {
    CQrUiToolPanelItem& item = addItem(kItemControl, L"ID");
    placeItem(toolkit(), item, {1, 2, 3, 4});
    EXPECT_EQ(item.GetPosition(), (CPoint{1, 2}));
}

}  // namespace
}  // namespace workbench
