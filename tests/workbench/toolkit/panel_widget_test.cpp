#include "workbench/toolkit/panel_widget.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/item_gestures.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/gestures/menu_gestures.h"
#include "workbench/gestures/mouse_gestures.h"

namespace workbench {
namespace {

using gestures::chooseFromContextMenu;
using gestures::clickTitle;
using testing::ElementsAre;
using testing::IsEmpty;

/// A panel set that counts what its panels tell it.
class CountingPanelSet final : public CQrUiPanelSet {
public:
    BOOL OnPanelCollapsed(CQrUiPanel* panel) override {
        collapsed.push_back(panel);
        return CQrUiPanelSet::OnPanelCollapsed(panel);
    }
    BOOL OnPanelExpanded(CQrUiPanel* panel) override {
        expanded.push_back(panel);
        return CQrUiPanelSet::OnPanelExpanded(panel);
    }
    std::vector<CQrUiPanel*> collapsed;
    std::vector<CQrUiPanel*> expanded;
};

/// A panel with a line of its own in the context menu.
class MenuPanel final : public Listening<CQrUiPanel> {
public:
    BOOL OnActivatePanel() override { return ++activations; }
    BOOL AddContextMenuItems(CMenu& menu) override {
        if (!addsLines)
            return 0;
        menu.AppendMenu(MF_SEPARATOR);
        return menu.AppendMenu(MF_STRING, 37331, L"Hide");
    }
    bool addsLines = true;
    int activations = 0;
};

class PanelWidgetTest : public ToolkitTest {
protected:
    PanelWidgetTest() {
        m_counting.Create(WS_CHILD | WS_VISIBLE, m_palette->GetClientRect(), m_palette, 2);
        m_tools = new CQrUiToolPanel;
        m_menuPanel.Create(WS_CHILD | WS_VISIBLE, L"Tools", &m_counting);
        m_tools->Create(WS_CHILD | WS_VISIBLE, m_counting.GetClientRect(), &m_menuPanel, 5, 0);
        addItemTo(*m_tools, kItemButton, L"ID_A");
        m_menuPanel.AddPanelChild(m_tools);
        m_counting.AddPanel(&m_menuPanel);
        m_counting.UpdateLayout();
    }

    CountingPanelSet m_counting;
    MenuPanel m_menuPanel;
    CQrUiToolPanel* m_tools = nullptr;  // owned by the panel
};

TEST_F(PanelWidgetTest, ToolPanelsStandBelowTheTitleInFullWidth) {
    const int width = m_counting.GetClientRect().Width();
    EXPECT_EQ(windows().find(m_tools->m_hWnd)->rect, (CRect{0, 20, width, 42}));
    EXPECT_EQ(windows().find(m_menuPanel.m_hWnd)->rect, (CRect{0, 0, width, 42}));
}

TEST_F(PanelWidgetTest, ATitleClickRollsThePanelUpAndDown) {
    clickTitle(toolkit(), m_menuPanel);
    EXPECT_THAT(m_counting.collapsed, ElementsAre(&m_menuPanel));
    EXPECT_FALSE(m_tools->IsWindowVisible());
    EXPECT_EQ(m_menuPanel.GetClientRect().Height(), 20);
    clickTitle(toolkit(), m_menuPanel);
    EXPECT_THAT(m_counting.expanded, ElementsAre(&m_menuPanel));
    EXPECT_TRUE(m_tools->IsWindowVisible());
    EXPECT_EQ(m_menuPanel.GetClientRect().Height(), 42);
}

TEST_F(PanelWidgetTest, ADoubleClickOnTheImageActivatesAndDoesNotRoll) {
    gestures::doubleClickImage(toolkit(), m_menuPanel);
    EXPECT_EQ(m_menuPanel.activations, 1);
    EXPECT_THAT(m_counting.collapsed, IsEmpty());
    gestures::doubleClickAt(toolkit(), m_menuPanel.m_hWnd, {60, 5});
    EXPECT_EQ(m_menuPanel.activations, 1);
}

TEST_F(PanelWidgetTest, TheContextMenuBeginsWithTheToolkitsLine) {
    std::vector<std::wstring> texts;
    for (const MenuLine& line : gestures::readContextMenu(toolkit(), m_menuPanel.m_hWnd))
        texts.push_back(line.separator ? L"-" : line.text);
    EXPECT_THAT(texts, ElementsAre(L"Collapse", L"-", L"Hide"));
    EXPECT_EQ(windows().menus().liveCount(), 0U);
}

TEST_F(PanelWidgetTest, TheToolkitsLineRollsAndIsNotSent) {
    chooseFromContextMenu(toolkit(), m_menuPanel.m_hWnd, L"Collapse");
    EXPECT_THAT(m_counting.collapsed, ElementsAre(&m_menuPanel));
    chooseFromContextMenu(toolkit(), m_menuPanel.m_hWnd, L"Expand");
    EXPECT_THAT(m_counting.expanded, ElementsAre(&m_menuPanel));
    EXPECT_THAT(m_menuPanel.of(WM_COMMAND), IsEmpty());
}

TEST_F(PanelWidgetTest, AnOwnLineIsSentToThePanel) {
    chooseFromContextMenu(toolkit(), m_menuPanel.m_hWnd, L"Hide");
    EXPECT_THAT(m_menuPanel.of(WM_COMMAND), ElementsAre(Received{WM_COMMAND, 37331, 0}));
}

TEST_F(PanelWidgetTest, AContextMenuOverAToolIsThePanels) {
    toolkit().menus().answerNext(
        [](const std::vector<MenuLine>&) { return std::optional(37331U); });
    toolkit().mouse().contextMenu(m_tools->m_hWnd, {5, 5});
    EXPECT_EQ(m_menuPanel.of(WM_COMMAND).size(), 1U);
}

TEST_F(PanelWidgetTest, NoMenuOpensWhenThePanelFailsToFillIt) {
    m_menuPanel.addsLines = false;
    EXPECT_THROW(gestures::readContextMenu(toolkit(), m_menuPanel.m_hWnd), std::runtime_error);
    EXPECT_EQ(windows().menus().liveCount(), 0U);
}

TEST_F(PanelWidgetTest, APanelGivesItsPicturesBack) {
    {
        CQrUiPanel panel;
        panel.SetImage(kPanelImage, toolkit().pictures().add("a", {1}));
        panel.SetImage(kPanelImage, toolkit().pictures().add("b", {1}));
        EXPECT_EQ(toolkit().pictures().liveCount(), 1U);
    }
    EXPECT_EQ(toolkit().pictures().liveCount(), 0U);
}

TEST_F(PanelWidgetTest, APanelThatGoesAsItIsRolledUpTellsNobody) {
    m_toolPanel->answers[WM_WINDOWPOSCHANGED] = [this](WPARAM, LPARAM) {
        m_panel.DestroyWindow();
        return 0;
    };
    gestures::clickTitle(toolkit(), m_panel);
    EXPECT_EQ(m_panel.m_hWnd, nullptr);
}

TEST_F(PanelWidgetTest, KeysOnTheTitleRollThePanelUpAndDown) {
    const auto isCollapsed = [this] { return toolkit().panels().of(&m_panel).collapsed; };
    ASSERT_TRUE(windows().setFocus(m_panel.m_hWnd));
    gestures::pressKey(toolkit(), "enter");
    EXPECT_TRUE(isCollapsed());
    gestures::pressKey(toolkit(), "right");
    EXPECT_FALSE(isCollapsed());
    gestures::pressKey(toolkit(), "left");
    EXPECT_TRUE(isCollapsed());
    EXPECT_EQ(windows().focus(), m_panel.m_hWnd);
}

}  // namespace
}  // namespace workbench
