#include "workbench/toolkit/flyout_menu.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"

namespace workbench {
namespace {

using testing::ElementsAre;

class FlyoutMenuTest : public ToolkitTest {
protected:
    FlyoutMenuTest() {
        m_first.SetName(L"First");
        m_second.SetName(L"Second");
        m_inner.SetName(L"More");
        m_deep.SetName(L"Deep");
        m_panelSet.UpdateLayout();
    }
    /// Opens the flyout and answers with a choice; the lines stand in `m_lines`.
    bool open(std::optional<UINT> choice) {
        toolkit().menus().answerNext([this, choice](const std::vector<MenuLine>& lines) {
            m_lines = lines;
            return choice;
        });
        return openFlyout(toolkit(), m_flyout);
    }

    CQrUiToolPanelItem& m_flyout = addItem(kItemFlyout, L"ID_F");
    CQrUiToolPanelItem& m_first = addTool(m_flyout, kItemButton, L"ID_1");
    CQrUiToolPanelItem& m_gap = addTool(m_flyout, kItemSeparator, L"");
    CQrUiToolPanelItem& m_inner = addTool(m_flyout, kItemFlyout, L"ID_INNER");
    CQrUiToolPanelItem& m_deep = addTool(m_inner, kItemButton, L"ID_DEEP");
    CQrUiToolPanelItem& m_second = addTool(m_flyout, kItemButton, L"ID_2");
    std::vector<MenuLine> m_lines;
};

TEST_F(FlyoutMenuTest, TheListShowsToolsSeparatorsAndNestedFlyouts) {
    EXPECT_FALSE(open({}));
    ASSERT_EQ(m_lines.size(), 4U);
    EXPECT_EQ(m_lines[0].text, L"First");
    EXPECT_TRUE(m_lines[0].checked);
    EXPECT_TRUE(m_lines[1].separator);
    EXPECT_EQ(m_lines[2].text, L"More");
    ASSERT_EQ(m_lines[2].children.size(), 1U);
    EXPECT_EQ(m_lines[2].children[0].text, L"Deep");
    EXPECT_EQ(m_lines[3].text, L"Second");
    EXPECT_FALSE(m_lines[3].checked);
}

TEST_F(FlyoutMenuTest, CommandsCountTheToolsInTheirOrder) {
    EXPECT_THAT(offeredTools(toolkit(), m_flyout), ElementsAre(&m_first, &m_deep, &m_second));
}

TEST_F(FlyoutMenuTest, TheChosenToolBecomesCurrent) {
    EXPECT_TRUE(open(3));
    EXPECT_EQ(m_flyout.GetCurrentFlyoutTool(), &m_second);
}

TEST_F(FlyoutMenuTest, AToolOfANestedFlyoutBecomesCurrentAtEachLevel) {
    EXPECT_TRUE(open(2));
    EXPECT_EQ(m_inner.GetCurrentFlyoutTool(), &m_deep);
    EXPECT_EQ(m_flyout.GetCurrentFlyoutTool(), &m_inner);
}

TEST_F(FlyoutMenuTest, HiddenToolsAreNotOfferedAndDisabledOnesAreGrey) {
    m_first.SetState(kItemHidden);
    m_second.SetState(kItemDisabled);
    open({});
    ASSERT_EQ(m_lines.size(), 3U);
    EXPECT_TRUE(m_lines[2].disabled);
}

TEST_F(FlyoutMenuTest, NoChoiceAndAnUnknownOneChangeNothing) {
    EXPECT_FALSE(open({}));
    EXPECT_FALSE(open(0));
    EXPECT_FALSE(open(4));
    EXPECT_EQ(m_flyout.GetCurrentFlyoutTool(), &m_first);
}

TEST_F(FlyoutMenuTest, AToolWithoutANameIsShownByItsId) {
    m_first.SetName(L"");
    open({});
    EXPECT_EQ(m_lines[0].text, L"ID_1");
}

TEST_F(FlyoutMenuTest, AFlyoutThatGoesWhileItsListIsOpenHasNoChoice) {
    toolkit().menus().answerNext([this](const std::vector<MenuLine>&) {
        m_toolPanel->DestroyWindow();
        return std::optional<UINT>(3);
    });
    EXPECT_FALSE(openFlyout(toolkit(), m_flyout));
    EXPECT_EQ(m_flyout.GetCurrentFlyoutTool(), &m_first);
}

}  // namespace
}  // namespace workbench
