#include "workbench/gestures/tree_gestures.h"

#include "tests/workbench/toolkit/dropdown_fixture.h"
#include "workbench/gestures/gesture_error.h"
#include "workbench/gestures/mouse_gestures.h"

namespace workbench::gestures {
namespace {

class TreeGesturesTest : public DropdownTest {
protected:
    TreeGesturesTest() {
        openDropdown();
        tree().log.clear();
    }

    TestDropdown& dropdown() { return *m_combo.dropdown; }
    TestTree& tree() { return dropdown().tree; }
    HTREEITEM at(std::wstring_view path) { return findNode(widget().items(), path); }
};

TEST_F(TreeGesturesTest, ANodeIsFoundByItsPathOfLabels) {
    EXPECT_EQ(at(L"All"), dropdown().all);
    EXPECT_EQ(at(L"All/Walls/Inner"), dropdown().inner);
    EXPECT_EQ(at(L"Walls"), nullptr);
    EXPECT_EQ(at(L"All/"), nullptr);
    const HTREEITEM both = tree().InsertItem(L"In/Out", 0, 0, dropdown().all, TVI_LAST);
    const HTREEITEM below = tree().InsertItem(L"x", 0, 0, both, TVI_LAST);
    EXPECT_EQ(at(L"All/In/Out"), both);
    EXPECT_EQ(at(L"All/In/Out/x"), below);
}

TEST_F(TreeGesturesTest, AClickOpensWhatTheNodeStandsInFirst) {
    EXPECT_TRUE(clickNode(toolkit(), tree().m_hWnd, dropdown().inner));
    EXPECT_EQ(tree().log, (std::vector<std::string>{"press Walls 16", "press Inner 4"}));
    EXPECT_EQ(tree().GetSelectedItem(), dropdown().inner);
}

TEST_F(TreeGesturesTest, RenamingGoesByTheKeyboardAlone) {
    renameNode(toolkit(), tree().m_hWnd, dropdown().doors, L"gates");
    EXPECT_EQ(tree().GetItemText(dropdown().doors), L"gates");
    EXPECT_EQ(tree().entered, (std::vector<std::optional<VxString>>{L"gates"}));
    EXPECT_EQ(tree().log, (std::vector<std::string>{"focus lost", "focus"}));
}

TEST_F(TreeGesturesTest, WhatNoUserCanDoIsRefused) {
    tree().DeleteItem(dropdown().doors);
    EXPECT_THROW(clickNode(toolkit(), tree().m_hWnd, dropdown().doors), GestureError);
    dropdown().check.SetFocus();
    EXPECT_THROW(renameNode(toolkit(), tree().m_hWnd, dropdown().walls, L"x"), GestureError);
    dropdown().ShowWindow(SW_HIDE);
    EXPECT_THROW(clickNode(toolkit(), tree().m_hWnd, dropdown().walls), GestureError);
    EXPECT_THROW(treeOf(toolkit(), m_combo.m_hWnd), GestureError);
    EXPECT_THROW(treeOf(toolkit(), nullptr), GestureError);
}

TEST_F(TreeGesturesTest, TheContextMenuOfANodeOpensAtItsLabel) {
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 11, L"One");
    menu.AppendMenu(MF_STRING | MF_GRAYED, 12, L"Two");
    tree().menu = &menu;
    const HWND window = tree().m_hWnd;
    const CPoint point = labelOf(toolkit(), window, dropdown().walls);
    EXPECT_EQ(readContextMenu(toolkit(), window, point).size(), 2U);
    chooseFromContextMenu(toolkit(), window, L"Two", point);
    EXPECT_EQ(tree().log, std::vector<std::string>{});
    chooseLineOfContextMenu(toolkit(), window, 1, point);
    EXPECT_EQ(tree().log, (std::vector<std::string>{"command 11"}));
    tree().menu = nullptr;
    EXPECT_THROW(readContextMenu(toolkit(), window, point), GestureError);
}

}  // namespace
}  // namespace workbench::gestures
