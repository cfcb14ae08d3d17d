#include "workbench/toolkit/tool_tip_widget.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/toolkit/input_messages.h"

#include <hostapi/qrui18/tool_tip.h>

namespace workbench {
namespace {

using Texts = std::vector<std::string>;

/// A control whose module hands on the messages that come by, as far as it cares to.
class RelayingToolPanel final : public CQrUiToolPanel {
public:
    BOOL PreTranslateMessage(MSG* message) override {
        if (relayTo != nullptr)
            relayTo->SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(message));
        return CQrUiToolPanel::PreTranslateMessage(message);
    }
    CQrToolTipCtrl* relayTo = nullptr;  // not owned; null: nothing is handed on
};

class ToolTipWidgetTest : public ToolkitTest {
protected:
    ToolTipWidgetTest() {
        m_row.Create(WS_CHILD | WS_VISIBLE, {0, 0, 200, 100}, m_toolPanel, 7, 0);
        m_x.Create(WS_CHILD | WS_VISIBLE, {0, 0, 50, 20}, &m_row, 1, 0);
        m_y.Create(WS_CHILD | WS_VISIBLE, {60, 0, 110, 20}, &m_row, 2, 0);
        m_tip.Create(&m_row);
        m_tip.AddTool(&m_x, L"X of the eye");
        m_tip.AddTool(&m_y, L"Y of the eye");
        m_row.relayTo = &m_tip;
        activate();
        journal().take();
    }
    void activate() { m_tip.SendMessage(TTM_ACTIVATE, 1); }
    void deactivate() { m_tip.SendMessage(TTM_ACTIVATE, 0); }
    void hover(const CWnd& field) { gestures::hoverAt(toolkit(), field.m_hWnd, {5, 5}); }
    void rest() { windows().advance(500); }
    void relay(HWND window, UINT message) {
        MSG record{window, message, 0, 0};
        m_tip.SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&record));
    }
    /// The texts that came up since the last look.
    Texts takeTips() {
        Texts texts;
        for (const JournalRecord& record : journal().take("tip"))
            texts.push_back(record.field("text").asString());
        return texts;
    }
    std::wstring shown() { return toolkit().toolTips().shown(); }

    RelayingToolPanel m_row;
    CQrUiInputEditCtrl m_x;
    CQrUiInputEditCtrl m_y;
    CQrToolTipCtrl m_tip;
};

TEST_F(ToolTipWidgetTest, ATextComesOnceTheMouseHasRestedOverItsWindow) {
    hover(m_x);
    windows().advance(499);
    EXPECT_EQ(takeTips(), Texts{});
    windows().advance(1);
    EXPECT_EQ(takeTips(), Texts{"X of the eye"});
    EXPECT_EQ(shown(), L"X of the eye");
}

TEST_F(ToolTipWidgetTest, MovesWithinAWindowDoNotBeginTheWaitAnew) {
    hover(m_x);
    windows().advance(300);
    gestures::hoverAt(toolkit(), m_x.m_hWnd, {9, 9});
    windows().advance(200);
    EXPECT_EQ(takeTips(), Texts{"X of the eye"});
    gestures::hoverAt(toolkit(), m_x.m_hWnd, {12, 9});
    EXPECT_EQ(shown(), L"X of the eye");
}

TEST_F(ToolTipWidgetTest, AnotherOfItsWindowsHasItsOwnText) {
    hover(m_x);
    rest();
    hover(m_y);
    EXPECT_EQ(shown(), L"");
    rest();
    EXPECT_EQ(takeTips(), (Texts{"X of the eye", "Y of the eye"}));
}

TEST_F(ToolTipWidgetTest, ItKnowsOfTheMouseWhatItIsTold) {
    m_row.relayTo = nullptr;
    hover(m_x);
    rest();
    EXPECT_EQ(takeTips(), Texts{});
    relay(m_x.m_hWnd, WM_MOUSEMOVE);
    rest();
    EXPECT_EQ(takeTips(), Texts{"X of the eye"});
}

TEST_F(ToolTipWidgetTest, ItShowsNothingBeforeItIsLetShow) {
    CQrToolTipCtrl fresh;
    fresh.Create(&m_row);
    fresh.AddTool(&m_x, L"Fresh");
    m_row.relayTo = &fresh;
    hover(m_x);
    rest();
    EXPECT_EQ(takeTips(), Texts{});
    fresh.SendMessage(TTM_ACTIVATE, 1);
    hover(m_x);
    rest();
    EXPECT_EQ(takeTips(), Texts{"Fresh"});
}

TEST_F(ToolTipWidgetTest, DeactivatingHidesWhatIsOnShowAndEndsTheWait) {
    hover(m_x);
    rest();
    deactivate();
    EXPECT_EQ(shown(), L"");
    takeTips();
    hover(m_y);
    rest();
    EXPECT_EQ(takeTips(), Texts{});
    activate();
    hover(m_y);
    windows().advance(499);
    deactivate();
    rest();
    EXPECT_EQ(takeTips(), Texts{});
}

TEST_F(ToolTipWidgetTest, DeactivatingLeavesTheTextsOfOthers) {
    CQrUiProgSliderCtrl slider;
    slider.Create(WS_CHILD | WS_VISIBLE, {0, 60, 50, 76}, m_toolPanel, 9, 2);
    slider.SetToolTipText(L"Lens 50");
    m_row.ShowWindow(SW_HIDE);
    gestures::hoverAt(toolkit(), slider.m_hWnd, {5, 5});
    rest();
    deactivate();
    EXPECT_EQ(shown(), L"Lens 50");
}

class EndingMessageTest : public ToolTipWidgetTest, public testing::WithParamInterface<UINT> {};

TEST_P(EndingMessageTest, HidesTheText) {
    hover(m_x);
    rest();
    ASSERT_EQ(shown(), L"X of the eye");
    relay(m_x.m_hWnd, GetParam());
    EXPECT_EQ(shown(), L"");
    takeTips();
    rest();
    EXPECT_EQ(takeTips(), Texts{});
}

INSTANTIATE_TEST_SUITE_P(Messages, EndingMessageTest,
                         testing::Values(kLeftButtonDown, kLeftButtonUp, kLeftButtonDoubleClick,
                                         kContextMenuMessage, kMouseLeave));

TEST_F(ToolTipWidgetTest, AMoveOverAWindowThatIsNoneOfItsOwnHidesTheText) {
    hover(m_x);
    rest();
    relay(m_row.m_hWnd, WM_MOUSEMOVE);
    EXPECT_EQ(shown(), L"");
}

TEST_F(ToolTipWidgetTest, KeysAndNothingAtAllChangeNothing) {
    hover(m_x);
    rest();
    relay(m_x.m_hWnd, WM_KEYDOWN);
    m_tip.SendMessage(TTM_RELAYEVENT, 0, 0);
    EXPECT_EQ(shown(), L"X of the eye");
}

TEST_F(ToolTipWidgetTest, AWindowsLastTextCounts) {
    m_tip.AddTool(&m_x, L"Other");
    hover(m_x);
    rest();
    EXPECT_EQ(takeTips(), Texts{"Other"});
}

TEST_F(ToolTipWidgetTest, AWindowOutsideOfTheToolkitHasNoText) {
    m_tip.AddTool(&frame().frame(), L"Frame");
    m_tip.AddTool(nullptr, L"Nothing");
    relay(frame().frame().m_hWnd, WM_MOUSEMOVE);
    rest();
    EXPECT_EQ(takeTips(), Texts{});
}

TEST_F(ToolTipWidgetTest, ItsTextGoesWithItsWindow) {
    hover(m_x);
    rest();
    m_row.relayTo = nullptr;
    m_tip.DestroyWindow();
    EXPECT_EQ(shown(), L"");
    hover(m_x);
    rest();
    EXPECT_EQ(takeTips(), Texts{"X of the eye"}) << "once, before its end";
}

}  // namespace
}  // namespace workbench
