#include "workbench/toolkit/tool_tips.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/gestures/slider_gestures.h"

namespace workbench {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class ToolTipsTest : public ToolkitTest {
protected:
    ToolTipsTest() {
        m_slider.Create(WS_CHILD | WS_VISIBLE, {50, 30, 100, 46}, m_toolPanel, 1, 2);
        m_slider.SetToolTipText(L"Fades locked layers");
        m_item.SetName(L"Line");
        m_panelSet.UpdateLayout();
        windows().setName(m_toolPanel->m_hWnd, "Tools");
        journal().take();
    }
    CQrUiToolPanelItem& m_item = addItem(kItemButton, L"ID_A");
    CQrUiProgSliderCtrl m_slider;
};

TEST_F(ToolTipsTest, ATipComesOnceTheMouseHasRested) {
    gestures::hoverAt(toolkit(), m_slider.m_hWnd, {5, 5});
    windows().advance(499);
    EXPECT_EQ(toolkit().toolTips().shown(), L"");
    windows().advance(1);
    EXPECT_EQ(toolkit().toolTips().shown(), L"Fades locked layers");
    const std::vector<JournalRecord> tips = journal().take("tip");
    ASSERT_THAT(tips, SizeIs(1));
    EXPECT_EQ(tips[0].field("text"), Value("Fades locked layers"));
    EXPECT_EQ(tips[0].field("owner"), Value("Tools"));
    windows().advance(5000);
    EXPECT_THAT(journal().take("tip"), IsEmpty());
}

TEST_F(ToolTipsTest, AnItemsNameIsItsTip) {
    gestures::hoverAt(toolkit(), m_toolPanel->m_hWnd, {5, 5});
    windows().advance(500);
    EXPECT_EQ(toolkit().toolTips().shown(), L"Line");
}

TEST_F(ToolTipsTest, APressOrLeavingHidesIt) {
    gestures::hoverAt(toolkit(), m_slider.m_hWnd, {5, 5});
    windows().advance(500);
    gestures::leave(toolkit());
    EXPECT_EQ(toolkit().toolTips().shown(), L"");
    gestures::hoverAt(toolkit(), m_slider.m_hWnd, {5, 5});
    toolkit().mouse().press(m_slider.m_hWnd, {5, 5});
    windows().advance(500);
    EXPECT_EQ(toolkit().toolTips().shown(), L"");
}

TEST_F(ToolTipsTest, ASliderShowsItsTextAtOnceOnlyUnderTheMouse) {
    gestures::hoverAt(toolkit(), m_toolPanel->m_hWnd, {5, 5});
    m_slider.SetToolTipText(L"Lens 50");
    m_slider.ShowToolTip();
    EXPECT_EQ(toolkit().toolTips().shown(), L"");
    windows().advance(500);
    EXPECT_EQ(toolkit().toolTips().shown(), L"Line") << "the wait of the tool's own goes on";
    gestures::hoverAt(toolkit(), m_slider.m_hWnd, {5, 5});
    m_slider.ShowToolTip();
    EXPECT_EQ(toolkit().toolTips().shown(), L"Lens 50");
    gestures::leave(toolkit());
    m_slider.ShowToolTip();
    EXPECT_EQ(toolkit().toolTips().shown(), L"");
}

TEST_F(ToolTipsTest, ADraggedSliderShowsItsTextWhereverTheMouseIs) {
    gestures::dragSlider(toolkit(), m_slider.m_hWnd, {40});
    toolkit().mouse().move(m_toolPanel->m_hWnd, {5, 5});
    m_slider.SetToolTipText(L"Lens 40");
    m_slider.ShowToolTip();
    EXPECT_EQ(toolkit().toolTips().shown(), L"Lens 40");
    gestures::releaseSlider(toolkit(), m_slider.m_hWnd);
}

TEST_F(ToolTipsTest, AWindowThatEndedMeanwhileShowsNone) {
    gestures::hoverAt(toolkit(), m_slider.m_hWnd, {5, 5});
    m_slider.DestroyWindow();
    windows().advance(500);
    EXPECT_THAT(journal().take("tip"), IsEmpty());
}

}  // namespace
}  // namespace workbench
