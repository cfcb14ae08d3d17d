#include "controls/ctrl_container.h"

#include "controls/edit_messages.h"
#include "tests/palette/palette_fixture.h"
#include "tests/support/call_lines.h"
#include "tests/support/first_rects.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/input_edit.h>
#include <hostapi/qrui18/tool_panel.h>

#include <optional>
#include <string>
#include <vector>

namespace {

struct Heard {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    friend bool operator==(const Heard&, const Heard&) = default;
};

/// A window that notes what a strip tells it.
class Holder : public CQrUiToolPanel {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message >= WM_DA_EDIT_KILLFOCUS && message <= WM_DA_EDIT_ESCAPE)
            heard.push_back({message, wParam, lParam});
        return CQrUiToolPanel::WindowProc(message, wParam, lParam);
    }
    std::vector<Heard> heard;
};

constexpr int kStripWidth = 200;  // pixels
constexpr int kFieldHeight = 16;  // pixels

class CtrlContainerTest : public PaletteTest {
protected:
    void SetUp() override {
        PaletteTest::SetUp();
        show();
        m_firstRects.emplace(bench().windows());
        ASSERT_TRUE(
            m_holder.Create(WS_CHILD | WS_VISIBLE, {0, 0, kStripWidth, 40}, &dashboard(), 1, 0));
        createStrip(m_strip, 10);
    }
    void TearDown() override {
        m_holder.DestroyWindow();
        PaletteTest::TearDown();
    }
    void createStrip(CVxDaCtrlContainer& strip, int height) {
        ASSERT_TRUE(strip.Create(WS_CHILD | WS_VISIBLE, {0, 0, kStripWidth, height}, &m_holder, 2));
        ASSERT_TRUE(createCoordinateFields(&strip));
    }
    CWnd& field(int index) { return *m_strip.GetItem(index); }
    CRect rectOf(const CWnd& window) { return bench().windows().find(window.m_hWnd)->rect; }
    LPARAM handleOf(int index) { return reinterpret_cast<LPARAM>(field(index).m_hWnd); }
    bool offer(CWnd& window, WPARAM key, UINT message = WM_KEYDOWN) {
        MSG msg{window.m_hWnd, message, key, 0};
        return m_strip.PreTranslateMessage(&msg) != 0;
    }

    Holder m_holder;
    CVxDaCtrlContainer m_strip;
    std::optional<support::FirstRects> m_firstRects;
};

// The fields

TEST_F(CtrlContainerTest, HasThreeFieldsInOrder) {
    ASSERT_EQ(m_strip.GetItemCount(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(field(i).GetDlgCtrlID(), 5001 + i);
        EXPECT_EQ(field(i).GetStyle() & 0xffffffffU, 0x50810080U);
        EXPECT_EQ(m_firstRects->of(field(i).m_hWnd), (CRect{0, 0, 16, 16}));
    }
}

TEST_F(CtrlContainerTest, FieldsAreMadeInThePlainStyleOfTheToolkit) {
    CVxDaCtrlContainer strip;
    forget();
    createStrip(strip, 10);
    EXPECT_EQ(
        support::callLines(bench().journal().records(), {"CQrUiInputEditCtrl::Create"}),
        (std::vector<std::string>{"CQrUiInputEditCtrl::Create(1350631552, object, 5001, 0)",
                                  "CQrUiInputEditCtrl::Create(1350631552, object, 5002, 0)",
                                  "CQrUiInputEditCtrl::Create(1350631552, object, 5003, 0)"}));
}

TEST_F(CtrlContainerTest, FieldsShareTheWidthWithMarginsOfThreeBetweenThem) {
    EXPECT_EQ(rectOf(field(0)), (CRect{0, 0, 64, kFieldHeight}));
    EXPECT_EQ(rectOf(field(1)), (CRect{67, 0, 132, kFieldHeight}));
    EXPECT_EQ(rectOf(field(2)), (CRect{135, 0, 200, kFieldHeight}));
}

struct HeightCase {
    int before;
    int after;
    std::vector<std::string> calls;  // that size the strip
};

class StripHeightTest : public CtrlContainerTest, public testing::WithParamInterface<HeightCase> {};

TEST_P(StripHeightTest, GrowsToTheFieldsAndNeverShrinks) {
    CVxDaCtrlContainer strip;
    forget();
    createStrip(strip, GetParam().before);
    EXPECT_EQ(rectOf(strip), (CRect{0, 0, kStripWidth, GetParam().after}));
    EXPECT_EQ(support::callLines(bench().journal().records(), {"CWnd::SetWindowPos"}),
              GetParam().calls);
}

INSTANTIATE_TEST_SUITE_P(
    Heights, StripHeightTest,
    testing::Values(
        HeightCase{10, 16, {"CWnd::SetWindowPos(\"CQrUiCtrlContainer\", 0, 0, 200, 16, 6)"}},
        HeightCase{15, 16, {"CWnd::SetWindowPos(\"CQrUiCtrlContainer\", 0, 0, 200, 16, 6)"}},
        HeightCase{16, 16, {}}, HeightCase{30, 30, {}}));

TEST_F(CtrlContainerTest, NothingIsMadeWithoutAWindow) {
    CVxDaCtrlContainer unborn;
    forget();
    EXPECT_EQ(createCoordinateFields(nullptr), 0);
    EXPECT_EQ(createCoordinateFields(&unborn), 0);
    EXPECT_EQ(callCount("CQrUiInputEditCtrl::Create"), 0);
}

// Keys

class FieldKeyTest : public CtrlContainerTest, public testing::WithParamInterface<int> {};

TEST_P(FieldKeyTest, EnterAndEscapeReachTheParentWithTheFieldAndAreConsumed) {
    const int index = GetParam();
    field(index).SetFocus();
    m_holder.heard.clear();
    EXPECT_TRUE(offer(field(index), VK_RETURN));
    EXPECT_TRUE(offer(field(index), VK_ESCAPE));
    const auto id = static_cast<WPARAM>(5001 + index);
    EXPECT_EQ(m_holder.heard, (std::vector<Heard>{{WM_DA_EDIT_ENTER, id, handleOf(index)},
                                                  {WM_DA_EDIT_ESCAPE, id, handleOf(index)}}));
}

INSTANTIATE_TEST_SUITE_P(Fields, FieldKeyTest, testing::Values(0, 1, 2));

TEST_F(CtrlContainerTest, EnterElsewhereGoesTheOrdinaryWay) {
    dashboard().SetFocus();
    m_holder.heard.clear();
    EXPECT_FALSE(offer(dashboard(), VK_RETURN));
    EXPECT_FALSE(offer(dashboard(), VK_ESCAPE));
    EXPECT_TRUE(m_holder.heard.empty());
}

TEST_F(CtrlContainerTest, EnterWhileNothingHasTheFocusGoesTheOrdinaryWay) {
    bench().windows().setFocus(nullptr);
    ASSERT_EQ(CWnd::GetFocus(), nullptr);
    m_holder.heard.clear();
    EXPECT_FALSE(offer(field(0), VK_RETURN));
    EXPECT_TRUE(m_holder.heard.empty());
}

TEST_F(CtrlContainerTest, OtherKeysAndOtherMessagesGoTheOrdinaryWay) {
    constexpr UINT kCharacter = 0x102;
    field(0).SetFocus();
    m_holder.heard.clear();
    EXPECT_FALSE(offer(field(0), 'A'));
    EXPECT_FALSE(offer(field(0), VK_RETURN, kCharacter));
    EXPECT_FALSE(offer(field(0), VK_ESCAPE, kCharacter));
    EXPECT_TRUE(m_holder.heard.empty());
}

// The focus

TEST_F(CtrlContainerTest, FocusChangeTellsTheLeavingFirst) {
    field(0).SetFocus();
    m_holder.heard.clear();
    field(1).SetFocus();
    EXPECT_EQ(
        m_holder.heard,
        (std::vector<Heard>{{WM_DA_EDIT_KILLFOCUS, MAKELONG(5001, EN_KILLFOCUS), handleOf(0)},
                            {WM_DA_EDIT_SETFOCUS, MAKELONG(5002, EN_SETFOCUS), handleOf(1)}}));
}

TEST_F(CtrlContainerTest, OtherNoticesOfAFieldAreKept) {
    constexpr UINT kTextChanged = 0x300;
    m_strip.SendMessage(WM_COMMAND, MAKELONG(5001, kTextChanged), handleOf(0));
    EXPECT_TRUE(m_holder.heard.empty());
}

}  // namespace
