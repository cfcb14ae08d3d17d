#include "workbench/toolkit/dropdowns.h"

#include "tests/workbench/toolkit/dropdown_fixture.h"

namespace workbench {
namespace {

class DropdownsTest : public DropdownTest {};

TEST_F(DropdownsTest, ADropdownAndItsPartsBearTheNameOfTheControlThatOpenedIt) {
    TestDropdown& dropdown = openDropdown();
    EXPECT_EQ(windows().find(dropdown.m_hWnd)->name, "FilterControl.dropdown");
    EXPECT_EQ(windows().find(dropdown.tree.m_hWnd)->name, "FilterControl.tree");
    EXPECT_EQ(windows().find(dropdown.check.m_hWnd)->name, "FilterControl.check");
}

TEST_F(DropdownsTest, APopupOfNobodyBearsNoName) {
    TestDropdown dropdown;
    ASSERT_TRUE(dropdown.open(frame().frame(), {10, 10}));
    EXPECT_EQ(windows().find(dropdown.m_hWnd)->name, "");
    EXPECT_EQ(windows().find(dropdown.tree.m_hWnd)->name, "");
}

TEST_F(DropdownsTest, OnlyATreeOnShowIsFoundAndTheControlsOwnFirst) {
    EXPECT_EQ(findDroppedTree(windows(), m_combo.m_hWnd), nullptr);
    TestDropdown other;
    other.open(frame().frame(), {10, 10});
    EXPECT_EQ(findDroppedTree(windows(), m_combo.m_hWnd), other.tree.m_hWnd);
    TestDropdown& own = openDropdown();
    EXPECT_EQ(findDroppedTree(windows(), m_combo.m_hWnd), own.tree.m_hWnd);
    EXPECT_EQ(findButtonBeside(windows(), own.tree.m_hWnd), own.check.m_hWnd);
    own.ShowWindow(SW_HIDE);
    EXPECT_EQ(findDroppedTree(windows(), m_combo.m_hWnd), other.tree.m_hWnd);
}

TEST_F(DropdownsTest, APopupStandsOnTheScreenOverItsParentAndGoesWithIt) {
    TestDropdown& dropdown = openDropdown();
    const CRect field = m_combo.GetWindowRect();
    EXPECT_EQ(dropdown.GetWindowRect().left, field.left);
    EXPECT_EQ(dropdown.GetWindowRect().top, field.bottom);
    EXPECT_EQ(dropdown.GetParent(), &frame().frame());
    EXPECT_EQ(windows().topWindows().back(), dropdown.m_hWnd);
    EXPECT_EQ(CWnd::GetActiveWindow(), &dropdown);
    EXPECT_EQ(dropdown.tree.ClientToScreen({1, 2}), (CPoint{field.left + 1, field.bottom + 2}));
}

TEST_F(DropdownsTest, AFieldThatTakesThePressItselfOpensNoList) {
    openDropdown();
    EXPECT_EQ(CWnd::GetFocus(), &m_combo.dropdown->tree);
    EXPECT_EQ(m_toolPanel->of(WM_COMMAND).size(), 0U);
}

TEST_F(DropdownsTest, ASecondPressOnTheFieldIsTheFieldsAffair) {
    openDropdown();
    clickField();
    EXPECT_FALSE(m_combo.dropdown->IsWindowVisible());
}

TEST_F(DropdownsTest, APressElsewhereTakesTheKeyboardFromTheDropdown) {
    TestDropdown& dropdown = openDropdown();
    dropdown.tree.log.clear();
    click(*m_toolPanel, {1, 40});
    EXPECT_EQ(CWnd::GetFocus(), &frame().drawingView());
    EXPECT_EQ(dropdown.tree.log, (std::vector<std::string>{"focus lost"}));
}

TEST_F(DropdownsTest, TabGoesFromTheTreeToTheCheckAndBack) {
    TestDropdown& dropdown = openDropdown();
    pressKey(9);
    EXPECT_EQ(CWnd::GetFocus(), &dropdown.check);
    pressKey(9);
    EXPECT_EQ(CWnd::GetFocus(), &dropdown.tree);
}

TEST_F(DropdownsTest, AChoiceFromAMenuComesAsACommandBeforeTheMenuIsLeft) {
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 11, L"One");
    menu.AppendMenu(MF_STRING, 12, L"Two");
    EXPECT_EQ(menu.EnableMenuItem(12, MF_BYCOMMAND | MF_GRAYED), 0);
    TestDropdown& dropdown = openDropdown();
    dropdown.tree.menu = &menu;
    dropdown.tree.log.clear();
    m_workbench.answers().queue("menu", "One");
    toolkit().mouse().contextMenu(dropdown.tree.m_hWnd, {5, 5});
    m_workbench.answers().queue("menu", "Two");
    toolkit().mouse().contextMenu(dropdown.tree.m_hWnd, {5, 5});
    EXPECT_EQ(dropdown.tree.log, (std::vector<std::string>{"command 11"}));
}

}  // namespace
}  // namespace workbench
