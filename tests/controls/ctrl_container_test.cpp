#include "controls/ctrl_container.h"

#include "controls/edit_messages.h"
#include "tests/palette/palette_fixture.h"

#include <hostapi/qrui18/input_edit.h>
#include <hostapi/qrui18/tool_panel.h>

#include <vector>

namespace {

struct Heard {
    UINT message;
    UINT id;
    friend bool operator==(const Heard&, const Heard&) = default;
};

/// A window that notes what a strip tells it.
class Holder : public CQrUiToolPanel {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message >= WM_DA_EDIT_KILLFOCUS && message <= WM_DA_EDIT_ESCAPE)
            heard.push_back({message, LOWORD(wParam)});
        return CQrUiToolPanel::WindowProc(message, wParam, lParam);
    }
    std::vector<Heard> heard;
};

class CtrlContainerTest : public PaletteTest {
protected:
    void SetUp() override {
        PaletteTest::SetUp();
        show();
        const CRect rect{0, 0, 200, 10};
        ASSERT_TRUE(m_holder.Create(WS_CHILD | WS_VISIBLE, {0, 0, 200, 40}, &dashboard(), 1, 0));
        ASSERT_TRUE(m_strip.Create(WS_CHILD | WS_VISIBLE, rect, &m_holder, 2));
        ASSERT_TRUE(createCoordinateFields(&m_strip));
    }
    void TearDown() override {
        m_holder.DestroyWindow();
        PaletteTest::TearDown();
    }
    CWnd& field(int index) { return *m_strip.GetItem(index); }
    bool offer(CWnd& window, WPARAM key) {
        MSG msg{window.m_hWnd, WM_KEYDOWN, key, 0};
        return m_strip.PreTranslateMessage(&msg) != 0;
    }

    Holder m_holder;
    CVxDaCtrlContainer m_strip;
};

TEST_F(CtrlContainerTest, HasThreeFieldsInOrder) {
    ASSERT_EQ(m_strip.GetItemCount(), 3);
    EXPECT_EQ(field(0).GetDlgCtrlID(), 5001);
    EXPECT_EQ(field(1).GetDlgCtrlID(), 5002);
    EXPECT_EQ(field(2).GetDlgCtrlID(), 5003);
    EXPECT_EQ(field(0).GetStyle() & 0xffffffffU, 0x50810080U);
}

TEST_F(CtrlContainerTest, GrowsToItsFieldsAndKeepsItsWidth) {
    EXPECT_EQ(m_strip.GetWindowRect().Height(), 16);
    EXPECT_EQ(m_strip.GetWindowRect().Width(), 200);
}

TEST_F(CtrlContainerTest, EnterInTheSecondFieldReachesTheParent) {
    field(1).SetFocus();
    m_holder.heard.clear();
    EXPECT_TRUE(offer(field(1), VK_RETURN));
    EXPECT_EQ(m_holder.heard, (std::vector<Heard>{{WM_DA_EDIT_ENTER, 5002}}));
    EXPECT_TRUE(offer(field(1), VK_ESCAPE));
    EXPECT_EQ(m_holder.heard.back(), (Heard{WM_DA_EDIT_ESCAPE, 5002}));
}

TEST_F(CtrlContainerTest, EnterElsewhereGoesTheOrdinaryWay) {
    dashboard().SetFocus();
    m_holder.heard.clear();
    EXPECT_FALSE(offer(dashboard(), VK_RETURN));
    EXPECT_TRUE(m_holder.heard.empty());
}

TEST_F(CtrlContainerTest, OtherKeysGoTheOrdinaryWay) {
    field(0).SetFocus();
    EXPECT_FALSE(offer(field(0), 'A'));
}

TEST_F(CtrlContainerTest, FocusChangeTellsTheLeavingFirst) {
    field(0).SetFocus();
    m_holder.heard.clear();
    field(1).SetFocus();
    EXPECT_EQ(m_holder.heard,
              (std::vector<Heard>{{WM_DA_EDIT_KILLFOCUS, 5001}, {WM_DA_EDIT_SETFOCUS, 5002}}));
}

TEST_F(CtrlContainerTest, NothingIsMadeWithoutAWindow) {
    CVxDaCtrlContainer unborn;
    EXPECT_EQ(createCoordinateFields(nullptr), 0);
    EXPECT_EQ(createCoordinateFields(&unborn), 0);
}

}  // namespace
