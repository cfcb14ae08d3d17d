#include "workbench/gestures/list_gestures.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/gesture_error.h"
#include "workbench/toolkit/combo_widget.h"

namespace workbench::gestures {
namespace {

class ListGesturesTest : public ToolkitTest {
protected:
    ListGesturesTest() {
        m_toolPanel->MoveWindow({0, 20, 200, 100});
        m_combo.Create(WS_CHILD | WS_VISIBLE, {0, 0, 100, 300}, m_toolPanel, 7);
        for (const wchar_t* text : {L"one", L"two"}) {
            auto entry = std::make_unique<QRUI_COMBO_CTRL_ITEM>();
            entry->text = text;
            m_combo.AddItem(entry.release());
        }
    }
    bool isOpen() { return windows().widgetOf<ComboWidget>(&m_combo)->isOpen(); }

    CQrUiComboCtrl m_combo;
};

TEST_F(ListGesturesTest, ListOpensAndCloses) {
    EXPECT_TRUE(openList(toolkit(), m_combo.m_hWnd));
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(openList(toolkit(), m_combo.m_hWnd));
    EXPECT_TRUE(closeList(toolkit(), m_combo.m_hWnd));
    EXPECT_FALSE(isOpen());
}

TEST_F(ListGesturesTest, ChoiceOpensTheListFirst) {
    EXPECT_TRUE(chooseFromList(toolkit(), m_combo.m_hWnd, 1));
    EXPECT_EQ(m_combo.GetCurSel(), 1);
    EXPECT_FALSE(isOpen());
}

TEST_F(ListGesturesTest, WhatIsNotThereCannotBeChosen) {
    EXPECT_THROW(chooseFromList(toolkit(), m_combo.m_hWnd, 2), GestureError);
    EXPECT_FALSE(isOpen());
    EXPECT_THROW(openList(toolkit(), m_toolPanel->m_hWnd), GestureError);
}

TEST_F(ListGesturesTest, DisabledListStaysClosed) {
    m_combo.EnableWindow(0);
    EXPECT_FALSE(openList(toolkit(), m_combo.m_hWnd));
    EXPECT_FALSE(chooseFromList(toolkit(), m_combo.m_hWnd, 1));
}

}  // namespace
}  // namespace workbench::gestures
