#include "workbench/toolkit/key_road.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/key_gestures.h"

namespace workbench {
namespace {

class KeyRoadTest : public ToolkitTest {
protected:
    KeyRoadTest() {
        UINT id = 1;
        for (CQrUiInputEditCtrl* edit : {&m_first, &m_second, &m_third})
            edit->Create(WS_CHILD | WS_VISIBLE, {0, 0, 60, 20}, m_toolPanel, id++, 0);
    }
    CQrUiInputEditCtrl m_first;
    CQrUiInputEditCtrl m_second;
    CQrUiInputEditCtrl m_third;
};

TEST_F(KeyRoadTest, TabGoesFromFieldToFieldAndRound) {
    gestures::focusField(toolkit(), m_first.m_hWnd);
    gestures::pressKey(toolkit(), "tab");
    EXPECT_EQ(windows().focus(), m_second.m_hWnd);
    gestures::pressKey(toolkit(), "tab");
    gestures::pressKey(toolkit(), "tab");
    EXPECT_EQ(windows().focus(), m_panel.m_hWnd) << "the title";
    gestures::pressKey(toolkit(), "tab");
    EXPECT_EQ(windows().focus(), m_first.m_hWnd);
}

TEST_F(KeyRoadTest, TabPassesOverDisabledAndHiddenFields) {
    m_second.EnableWindow(0);
    EXPECT_EQ(nextField(windows(), m_first.m_hWnd), m_third.m_hWnd);
    m_third.ShowWindow(SW_HIDE);
    EXPECT_EQ(nextField(windows(), m_first.m_hWnd), m_panel.m_hWnd);
}

TEST_F(KeyRoadTest, TabSelectsTheWholeText) {
    m_second.SetWindowText(L"old");
    gestures::focusField(toolkit(), m_first.m_hWnd);
    gestures::pressKey(toolkit(), "tab");
    gestures::typeText(toolkit(), L"n");
    EXPECT_EQ(m_second.GetWindowText(), L"n");
}

TEST_F(KeyRoadTest, WithShiftHeldTabGoesBack) {
    gestures::focusField(toolkit(), m_first.m_hWnd);
    gestures::holdKey(toolkit(), "shift", true);
    gestures::pressKey(toolkit(), "tab");
    EXPECT_EQ(windows().focus(), m_panel.m_hWnd);
    gestures::pressKey(toolkit(), "tab");
    EXPECT_EQ(windows().focus(), m_third.m_hWnd);
    gestures::pressKey(toolkit(), "tab");
    gestures::holdKey(toolkit(), "shift", false);
    EXPECT_EQ(windows().focus(), m_second.m_hWnd);
}

TEST_F(KeyRoadTest, TabStopsAtSlidersAndListsToo) {
    CQrUiProgSliderCtrl slider;
    slider.Create(WS_CHILD | WS_VISIBLE, {0, 0, 60, 16}, m_toolPanel, 8, 0);
    CQrUiComboCtrl combo;
    combo.Create(WS_CHILD | WS_VISIBLE, {0, 0, 60, 100}, m_toolPanel, 9);
    EXPECT_EQ(nextField(windows(), m_third.m_hWnd), slider.m_hWnd);
    EXPECT_EQ(nextField(windows(), slider.m_hWnd), combo.m_hWnd);
    EXPECT_EQ(nextField(windows(), combo.m_hWnd), m_panel.m_hWnd);
}

TEST_F(KeyRoadTest, TabStopsAtARowOfToolsButNotAtOneWithoutAny) {
    EXPECT_EQ(nextField(windows(), m_panel.m_hWnd), m_first.m_hWnd);
    addItem(kItemButton, L"ID_A");
    m_panelSet.UpdateLayout();
    EXPECT_EQ(nextField(windows(), m_panel.m_hWnd), m_toolPanel->m_hWnd);
    EXPECT_EQ(nextField(windows(), m_toolPanel->m_hWnd), m_first.m_hWnd);
}

TEST_F(KeyRoadTest, OutsideASetThereIsNoNextField) {
    EXPECT_EQ(nextField(windows(), frame().drawingView().m_hWnd), nullptr);
    EXPECT_EQ(nextField(windows(), nullptr), nullptr);
}

TEST_F(KeyRoadTest, OtherKeysGoToTheCommandLine) {
    journal().take();
    passKeyOn(toolkit(), VK_RETURN, 0);
    const std::vector<JournalRecord> messages = journal().take("message");
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0].field("control"), Value("CommandLine"));
    EXPECT_EQ(messages[0].field("number"), Value(256));
}

}  // namespace
}  // namespace workbench
