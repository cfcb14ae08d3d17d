#include "workbench/gestures/item_gestures.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/gesture_error.h"

namespace workbench::gestures {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

class ItemGesturesTest : public ToolkitTest {
protected:
    ItemGesturesTest() { m_panelSet.UpdateLayout(); }

    CQrUiToolPanelItem& m_flyout = addItem(kItemFlyout, L"ID_F");
    CQrUiToolPanelItem& m_first = addTool(m_flyout, kItemButton, L"ID_1");
    CQrUiToolPanelItem& m_second = addTool(m_flyout, kItemButton, L"ID_2");
};

TEST_F(ItemGesturesTest, AToolOfAFlyoutBecomesCurrentAndTheFlyoutIsClicked) {
    EXPECT_TRUE(clickItem(toolkit(), m_second));
    EXPECT_EQ(m_flyout.GetCurrentFlyoutTool(), &m_second);
    EXPECT_THAT(
        m_panel.of(WM_QRUI_ITEM_CLICKED),
        ElementsAre(Received{WM_QRUI_ITEM_CLICKED, 0, reinterpret_cast<LPARAM>(&m_flyout)}));
}

TEST_F(ItemGesturesTest, ADisabledToolOrFlyoutTakesNoClick) {
    m_second.SetState(kItemDisabled);
    EXPECT_FALSE(clickItem(toolkit(), m_second));
    m_second.SetState(0);
    m_flyout.SetState(kItemDisabled);
    EXPECT_FALSE(clickItem(toolkit(), m_second));
    EXPECT_EQ(m_flyout.GetCurrentFlyoutTool(), &m_first);
    EXPECT_FALSE(toolkit().menus().isAnswerWaiting());
}

TEST_F(ItemGesturesTest, AnItemThatIsNotOnShowCannotBeClicked) {
    m_panel.ShowWindow(SW_HIDE);
    EXPECT_THROW(clickItem(toolkit(), m_flyout), GestureError);
    EXPECT_THROW(clickItem(toolkit(), m_second), GestureError);
    EXPECT_FALSE(toolkit().menus().isAnswerWaiting());
}

TEST_F(ItemGesturesTest, AnItemWithoutAPlaceCannotBeClicked) {
    EXPECT_THROW(clickItem(toolkit(), addItem(kItemButton, L"ID_NEW")), GestureError);
    CQrUiToolPanelItem& rowBreak = addItem(kItemRowBreak, L"");
    m_panelSet.UpdateLayout();
    EXPECT_THROW(clickItem(toolkit(), rowBreak), GestureError);
}

TEST_F(ItemGesturesTest, TheIconOfAControlIsItsFirstButton) {
    ListeningToolPanel control;
    control.Create(WS_CHILD | WS_VISIBLE, {0, 0, 50, 22}, m_toolPanel, 1, 0);
    addItemTo(control, kItemSeparator, L"");
    addItemTo(control, kItemButton, L"TPB_ICON");
    addControlTo(*m_toolPanel, control);
    m_panelSet.UpdateLayout();
    EXPECT_TRUE(clickIcon(toolkit(), control.m_hWnd));
    EXPECT_THAT(control.clicks, ElementsAre(CPoint{17, 11}));
}

TEST_F(ItemGesturesTest, AControlWithoutAnIconIsClickedInItsMiddle) {
    ListeningToolPanel control;
    control.Create(WS_CHILD | WS_VISIBLE, {0, 0, 50, 22}, m_toolPanel, 1, 0);
    EXPECT_TRUE(clickIcon(toolkit(), control.m_hWnd));
    EXPECT_THAT(control.clicks, ElementsAre(CPoint{25, 11}));
}

TEST_F(ItemGesturesTest, TitlesAndImagesAreClickedWhereTheyStand) {
    EXPECT_TRUE(clickTitle(toolkit(), m_panel));
    EXPECT_FALSE(m_toolPanel->IsWindowVisible());
    EXPECT_TRUE(doubleClickImage(toolkit(), m_panel));
    EXPECT_FALSE(m_toolPanel->IsWindowVisible());
}

}  // namespace
}  // namespace workbench::gestures
