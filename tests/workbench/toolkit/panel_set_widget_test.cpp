#include "workbench/toolkit/panel_set_widget.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/mouse_gestures.h"

namespace workbench {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PanelSetWidgetTest : public ToolkitTest {
protected:
    CQrUiPanel& addPanel() {
        auto& panel = *m_panels.emplace_back(std::make_unique<CQrUiPanel>());
        panel.Create(WS_CHILD | WS_VISIBLE, L"More", &m_panelSet);
        m_panelSet.AddPanel(&panel);
        return panel;
    }
    int topOf(const CWnd& window) { return windows().find(window.m_hWnd)->rect.top; }

    std::vector<std::unique_ptr<CQrUiPanel>> m_panels;
};

TEST_F(PanelSetWidgetTest, PanelsStandBelowEachOtherAndTheSetIsTheirSum) {
    CQrUiPanel& second = addPanel();
    addItem(kItemButton, L"ID_A");
    m_panelSet.UpdateLayout();
    EXPECT_EQ(topOf(m_panel), 0);
    EXPECT_EQ(topOf(second), 42);
    EXPECT_EQ(m_panelSet.GetClientRect().Height(), 62);
}

TEST_F(PanelSetWidgetTest, HiddenAndUnlistedPanelsTakeNoPlace) {
    CQrUiPanel& second = addPanel();
    CQrUiPanel& third = addPanel();
    m_panel.ShowWindow(SW_HIDE);
    m_panelSet.RemovePanel(&second);
    m_panelSet.UpdateLayout();
    EXPECT_EQ(topOf(third), 0);
    EXPECT_EQ(m_panelSet.GetClientRect().Height(), 20);
    EXPECT_EQ(m_panelSet.GetPanelCount(), 2);
    EXPECT_TRUE(m_panelSet.HasVisiblePanel());
    EXPECT_FALSE(m_panelSet.HasPanel(&second));
}

TEST_F(PanelSetWidgetTest, AnEmptySetKeepsRoomForALink) {
    m_panelSet.RemovePanel(&m_panel);
    m_panelSet.RemovePanel(&m_panel);
    m_panelSet.UpdateLayout();
    EXPECT_EQ(m_panelSet.GetClientRect().Height(), PanelSetWidget::kEmptyHeight);
    EXPECT_FALSE(m_panelSet.HasVisiblePanel());
}

TEST_F(PanelSetWidgetTest, ANewWidthLaysOutAnewAndANewHeightDoesNot) {
    const int before = m_toolPanel->layouts;
    m_panelSet.SetWindowPos(0, 0, m_panelSet.GetClientRect().Width(), 33,
                            SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(m_toolPanel->layouts, before);
    m_panelSet.SetWindowPos(0, 0, 180, 33, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_GT(m_toolPanel->layouts, before);
    EXPECT_EQ(m_toolPanel->GetClientRect().Width(), 180);
}

TEST_F(PanelSetWidgetTest, TheWheelScrollsAsFarAsThePanelsReach) {
    for (int index = 0; index < 60; ++index)
        addPanel();
    m_panelSet.UpdateLayout();
    const int hidden = m_panelSet.GetClientRect().Height() - m_palette->GetClientRect().Height();
    ASSERT_GT(hidden, 60);
    gestures::turnWheel(toolkit(), m_panel.m_hWnd, {5, 5}, 1);
    EXPECT_EQ(topOf(m_panel), 0);
    gestures::turnWheel(toolkit(), m_panel.m_hWnd, {5, 5}, -1);
    EXPECT_EQ(topOf(m_panel), -60);
    gestures::turnWheel(toolkit(), m_panelSet.m_hWnd, {5, 100}, -100);
    EXPECT_EQ(topOf(m_panel), -hidden);
}

TEST_F(PanelSetWidgetTest, FewerPanelsScrollBack) {
    for (int index = 0; index < 60; ++index)
        addPanel();
    m_panelSet.UpdateLayout();
    gestures::turnWheel(toolkit(), m_panelSet.m_hWnd, {5, 100}, -100);
    for (const auto& panel : m_panels)
        m_panelSet.RemovePanel(panel.get());
    m_panelSet.UpdateLayout();
    EXPECT_EQ(topOf(m_panel), 0);
}

TEST_F(PanelSetWidgetTest, AThemeChangeThatChangesTheHeightReportsTheSize) {
    CQrUiToolPanelItem& item = addItem(kItemButton, L"ID_A");
    m_panelSet.UpdateLayout();
    item.SetState(kItemHidden);
    m_panelSet.SendMessage(WM_QRUI_THEME_CHANGED);
    EXPECT_THAT(m_palette->of(WM_QRUI_POSITION), IsEmpty());
    windows().queue().runPosted();
    const auto width = static_cast<UINT>(m_panelSet.GetClientRect().Width());
    EXPECT_THAT(m_palette->of(WM_QRUI_POSITION),
                ElementsAre(Received{WM_QRUI_POSITION, MAKELONG(width, 20), 0}));
}

TEST_F(PanelSetWidgetTest, HiddenPanelsHearOfThemesToo) {
    m_panel.ShowWindow(SW_HIDE);
    m_panelSet.RemovePanel(&m_panel);
    m_panelSet.SendMessage(WM_QRUI_THEME_CHANGED);
    EXPECT_EQ(m_panel.of(WM_QRUI_THEME_CHANGED).size(), 1U);
}

TEST_F(PanelSetWidgetTest, TheSmallestSizeFitsARow) {
    CSize size{500, 500};
    m_panelSet.GetMinimumSize(size);
    EXPECT_EQ(size, (CSize{120, 20}));
}

TEST_F(PanelSetWidgetTest, ASetThatGoesInTheMiddleOfItsLayoutIsLaidOutNoFurther) {
    m_toolPanel->answers[WM_SIZE] = [this](WPARAM, LPARAM) {
        m_panelSet.DestroyWindow();
        return 0;
    };
    m_panelSet.MoveWindow({0, 0, 150, 300});
    EXPECT_EQ(m_panelSet.m_hWnd, nullptr);
    EXPECT_EQ(m_panel.m_hWnd, nullptr);
}

}  // namespace
}  // namespace workbench
