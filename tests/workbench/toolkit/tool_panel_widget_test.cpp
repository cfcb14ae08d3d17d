#include "workbench/toolkit/tool_panel_widget.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/item_gestures.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/toolkit/input_messages.h"

namespace workbench {
namespace {

using gestures::clickAt;
using gestures::clickItem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ToolPanelWidgetTest : public ToolkitTest {
protected:
    /// Adds a custom control with an icon and lays the panel out.
    ListeningToolPanel& addControl() {
        auto& control = *m_controls.emplace_back(std::make_unique<ListeningToolPanel>());
        control.Create(WS_CHILD | WS_VISIBLE, {0, 0, 50, 22}, m_toolPanel, 1, 0);
        addItemTo(control, kItemButton, L"TPB_ICON");
        addControlTo(*m_toolPanel, control);
        m_panelSet.UpdateLayout();
        return control;
    }
    LPARAM itemOf(const CQrUiToolPanelItem& item) const { return reinterpret_cast<LPARAM>(&item); }

    std::vector<std::unique_ptr<ListeningToolPanel>> m_controls;
};

TEST_F(ToolPanelWidgetTest, AClickOnAnItemIsSentToThePanel) {
    CQrUiToolPanelItem& item = addItem(kItemButton, L"ID_A");
    m_panelSet.UpdateLayout();
    EXPECT_TRUE(clickItem(toolkit(), item));
    EXPECT_THAT(m_panel.of(WM_QRUI_ITEM_CLICKED),
                ElementsAre(Received{WM_QRUI_ITEM_CLICKED, 0, itemOf(item)}));
}

TEST_F(ToolPanelWidgetTest, AReleaseOverAnotherItemIsNoClick) {
    addItem(kItemButton, L"ID_A");
    addItem(kItemButton, L"ID_B");
    m_panelSet.UpdateLayout();
    toolkit().mouse().press(m_toolPanel->m_hWnd, {5, 5});
    toolkit().mouse().release(m_toolPanel->m_hWnd, {30, 5});
    toolkit().mouse().release(m_toolPanel->m_hWnd, {5, 5});
    EXPECT_THAT(m_panel.of(WM_QRUI_ITEM_CLICKED), SizeIs(1));
    toolkit().mouse().release(m_toolPanel->m_hWnd, {5, 5});
    EXPECT_THAT(m_panel.of(WM_QRUI_ITEM_CLICKED), SizeIs(1));
}

TEST_F(ToolPanelWidgetTest, DisabledAndHiddenItemsTakeNoClick) {
    CQrUiToolPanelItem& disabled = addItem(kItemButton, L"ID_A");
    CQrUiToolPanelItem& hidden = addItem(kItemButton, L"ID_B");
    disabled.SetState(kItemDisabled);
    hidden.SetState(kItemHidden);
    m_panelSet.UpdateLayout();
    EXPECT_FALSE(clickItem(toolkit(), disabled));
    EXPECT_FALSE(clickItem(toolkit(), hidden));
    clickAt(toolkit(), m_toolPanel->m_hWnd, {5, 5});
    EXPECT_THAT(m_panel.of(WM_QRUI_ITEM_CLICKED), IsEmpty());
}

TEST_F(ToolPanelWidgetTest, AClickOnASeparatorIsSentToo) {
    CQrUiToolPanelItem& separator = addItem(kItemSeparator, L"");
    m_panelSet.UpdateLayout();
    EXPECT_TRUE(clickItem(toolkit(), separator));
    EXPECT_THAT(m_panel.of(WM_QRUI_ITEM_CLICKED), SizeIs(1));
}

TEST_F(ToolPanelWidgetTest, AFlyoutClickBringsTheFlyoutItself) {
    CQrUiToolPanelItem& flyout = addItem(kItemFlyout, L"ID_F");
    addTool(flyout, kItemButton, L"ID_1");
    m_panelSet.UpdateLayout();
    clickItem(toolkit(), flyout);
    EXPECT_THAT(m_panel.of(WM_QRUI_ITEM_CLICKED),
                ElementsAre(Received{WM_QRUI_ITEM_CLICKED, 0, itemOf(flyout)}));
}

TEST_F(ToolPanelWidgetTest, AControlsOwnItemsClickTheControl) {
    ListeningToolPanel& control = addControl();
    EXPECT_TRUE(clickItem(toolkit(), *control.GetToolPanelItem(0)));
    EXPECT_THAT(control.clicks, ElementsAre(CPoint{11, 11}));
    EXPECT_THAT(m_panel.of(WM_QRUI_ITEM_CLICKED), IsEmpty());
}

TEST_F(ToolPanelWidgetTest, AClickBesideItemsReachesOnlyControls) {
    ListeningToolPanel& control = addControl();
    clickAt(toolkit(), control.m_hWnd, {100, 5});
    EXPECT_THAT(control.clicks, ElementsAre(CPoint{100, 5}));
    clickAt(toolkit(), m_toolPanel->m_hWnd, {5, 500});
    EXPECT_THAT(m_toolPanel->clicks, IsEmpty());
}

TEST_F(ToolPanelWidgetTest, AControlWithoutAnIconGetsNoClickOnOne) {
    ListeningToolPanel control;
    control.Create(WS_CHILD | WS_VISIBLE, {0, 0, 50, 22}, m_toolPanel, 1, 0);
    addItemTo(control, kItemButton, L"ICON");
    addControlTo(*m_toolPanel, control);
    m_panelSet.UpdateLayout();
    control.answers[WM_QRUI_HAS_ICON] = [](WPARAM, LPARAM) { return LRESULT{0}; };
    gestures::clickAt(toolkit(), control.m_hWnd, {5, 5});
    EXPECT_TRUE(control.clicks.empty());
    EXPECT_EQ(control.of(WM_QRUI_HAS_ICON).size(), 1U);
    control.answers[WM_QRUI_HAS_ICON] = [](WPARAM, LPARAM) { return LRESULT{1}; };
    gestures::clickAt(toolkit(), control.m_hWnd, {5, 5});
    EXPECT_EQ(control.clicks.size(), 1U);
}

TEST_F(ToolPanelWidgetTest, AControlTakesTheRestOfItsRowAndRenewsItsLayout) {
    addItem(kItemButton, L"ID_A");
    ListeningToolPanel& control = addControl();
    const int width = m_toolPanel->GetClientRect().Width();
    EXPECT_EQ(windows().find(control.m_hWnd)->rect, (CRect{22, 0, width, 22}));
    EXPECT_EQ(control.layouts, 1);
    EXPECT_EQ(m_toolPanel->GetClientRect().Height(), 22);
}

TEST_F(ToolPanelWidgetTest, AControlThatIsSizedByOthersRenewsItsLayout) {
    ListeningToolPanel& control = addControl();
    control.layouts = 0;
    control.SetWindowPos(0, 0, 90, 22, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(control.layouts, 1);
}

TEST_F(ToolPanelWidgetTest, AHiddenItemHidesItsControlUntilItComesBack) {
    ListeningToolPanel& control = addControl();
    CQrUiToolPanelItem& item = *m_toolPanel->GetToolPanelItem(0);
    item.SetState(kItemHidden);
    m_panelSet.UpdateLayout();
    EXPECT_FALSE(control.IsWindowVisible());
    EXPECT_EQ(m_toolPanel->GetClientRect().Height(), 0);
    item.SetState(0);
    m_panelSet.UpdateLayout();
    EXPECT_TRUE(control.IsWindowVisible());
}

TEST_F(ToolPanelWidgetTest, AControlThatItsOwnerHidStaysHidden) {
    ListeningToolPanel& control = addControl();
    control.ShowWindow(SW_HIDE);
    m_panelSet.UpdateLayout();
    EXPECT_FALSE(control.IsWindowVisible());
}

TEST_F(ToolPanelWidgetTest, AThemeChangeReachesTheControlsAndLaysOut) {
    ListeningToolPanel& control = addControl();
    const int before = m_toolPanel->layouts;
    m_panelSet.SendMessage(WM_QRUI_THEME_CHANGED, 0, 5);
    EXPECT_THAT(control.of(WM_QRUI_THEME_CHANGED),
                ElementsAre(Received{WM_QRUI_THEME_CHANGED, 0, 5}));
    EXPECT_GT(m_toolPanel->layouts, before);
}

TEST_F(ToolPanelWidgetTest, APanelImageIndentsTheRows) {
    auto* const indented = new CQrUiToolPanel;
    indented->Create(WS_CHILD | WS_VISIBLE, m_panelSet.GetClientRect(), &m_panel, 101, 2);
    m_panel.AddPanelChild(indented);
    const CQrUiToolPanelItem& item = addItemTo(*indented, kItemButton, L"ID_A");
    m_panelSet.UpdateLayout();
    CRect rect;
    item.GetRect(rect, kItemClientRect);
    EXPECT_EQ(rect, (CRect{24, 0, 46, 22}));
}

TEST_F(ToolPanelWidgetTest, AControlThatEndsItsPanelDuringItsClickIsSafe) {
    ListeningToolPanel& control = addControl();
    control.onClick = [this] { m_set->DestroyWindow(); };
    clickItem(toolkit(), *control.GetToolPanelItem(0));
    EXPECT_EQ(m_toolPanel->m_hWnd, nullptr);
}

TEST_F(ToolPanelWidgetTest, ArrowKeysMarkToolsAndEnterClicksThem) {
    addItem(kItemButton, L"ID_A");
    addItem(kItemSeparator, L"");
    CQrUiToolPanelItem& last = addItem(kItemButton, L"ID_B");
    m_panelSet.UpdateLayout();
    const Window& window = *windows().find(m_toolPanel->m_hWnd);
    const auto& widget = static_cast<const ToolPanelWidget&>(*window.widget);
    EXPECT_EQ(widget.marked(window), -1);
    ASSERT_TRUE(windows().setFocus(m_toolPanel->m_hWnd));
    EXPECT_EQ(widget.marked(window), 0);
    gestures::pressKey(toolkit(), "left");
    EXPECT_EQ(widget.marked(window), 0) << "there is none before it";
    gestures::pressKey(toolkit(), "right");
    EXPECT_EQ(widget.marked(window), 2) << "a separator is no tool";
    gestures::pressKey(toolkit(), "right");
    EXPECT_EQ(widget.marked(window), 2);
    gestures::pressKey(toolkit(), "home");
    EXPECT_EQ(widget.marked(window), 0);
    gestures::pressKey(toolkit(), "end");
    EXPECT_THAT(m_panel.of(WM_QRUI_ITEM_CLICKED), IsEmpty());
    gestures::pressKey(toolkit(), "enter");
    EXPECT_THAT(m_panel.of(WM_QRUI_ITEM_CLICKED),
                ElementsAre(Received{WM_QRUI_ITEM_CLICKED, 0, itemOf(last)}));
    EXPECT_EQ(windows().focus(), frame().drawingView().m_hWnd) << "as behind a click";
}

TEST_F(ToolPanelWidgetTest, DownOpensTheMenuOfTheMarkedFlyout) {
    CQrUiToolPanelItem& flyout = addItem(kItemFlyout, L"ID_F");
    CQrUiToolPanelItem& first = addTool(flyout, kItemButton, L"ID_A");
    CQrUiToolPanelItem& second = addTool(flyout, kItemButton, L"ID_B");
    first.SetName(L"A");
    second.SetName(L"B");
    m_panelSet.UpdateLayout();
    m_workbench.answers().queue("menu", "B");
    windows().setFocus(m_toolPanel->m_hWnd);
    gestures::pressKey(toolkit(), "down");
    EXPECT_THAT(m_panel.of(WM_QRUI_ITEM_CLICKED), SizeIs(1));
}

}  // namespace
}  // namespace workbench
