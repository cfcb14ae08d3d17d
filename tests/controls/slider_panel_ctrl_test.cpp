#include "controls/slider_panel_ctrl.h"

#include "controls/edit_messages.h"
#include "controls/row_items.h"
#include "tests/palette/palette_fixture.h"

#include <hostapi/qrui18/input_edit.h>
#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/window/frame.h>

#include <memory>

namespace {

constexpr int kIconWidth = 22;  // pixels, the toolkit's at 16-pixel icons

/// A control of the test's own: icon, slider, and an edit field that the base knows nothing of.
class TestControl final : public CVxDaSliderPanelCtrl {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_CREATE)
            return create(reinterpret_cast<const CREATESTRUCT*>(lParam));
        if (message == WM_DA_EDIT_ENTER || message == WM_DA_EDIT_ESCAPE)
            ++told;
        return CVxDaSliderPanelCtrl::WindowProc(message, wParam, lParam);
    }

    int told = 0;  ///< messages about Enter and Escape
    CQrUiProgSliderCtrl& slider() { return m_slider; }
    CQrUiInputEditCtrl& edit() { return m_edit; }

private:
    void sliderMoved(int /*position*/) override {}

    LRESULT create(const CREATESTRUCT* creation) {
        if (OnCreate(creation) == -1)
            return -1;
        m_slider.Create(WS_CHILD | WS_VISIBLE, {0, 0, 10, 10}, this, kFirstEditId, 2);
        m_edit.Create(WS_CHILD | WS_VISIBLE, {0, 0, 16, 16}, this, kFirstEditId, 0);
        addIconItem(this, L"TPB_TEST", L"RCDATA_NONE");
        addControlItem(this, m_slider.m_hWnd);
        addControlItem(this, m_edit.m_hWnd);
        return 0;
    }

    CQrUiInputEditCtrl m_edit;
};

class SliderPanelTest : public PaletteTest {
protected:
    void SetUp() override {
        load();
        ASSERT_TRUE(
            control.Create(WS_CHILD | WS_VISIBLE, {0, 0, kWidth, 60}, AfxGetMainWnd(), 900, 0));
    }
    void TearDown() override {
        control.DestroyWindow();
        m_owned.reset();
        PaletteTest::TearDown();
    }

    static constexpr int kWidth = 300;  // pixels
    std::unique_ptr<TestControl> m_owned = std::make_unique<TestControl>();
    TestControl& control = *m_owned;
};

TEST_F(SliderPanelTest, CreatesNoEditPart) {
    EXPECT_EQ(control.CreateEditPart(), 0);
    EXPECT_EQ(control.GetToolPanelItemCount(), 3);
}

TEST_F(SliderPanelTest, EnterAndEscapeInsideGoTheOrdinaryWay) {
    for (CWnd* inside :
         {static_cast<CWnd*>(&control.slider()), static_cast<CWnd*>(&control.edit())}) {
        inside->SetFocus();
        ASSERT_EQ(CWnd::GetFocus(), inside);
        for (const WPARAM key : {WPARAM{VK_RETURN}, WPARAM{VK_ESCAPE}}) {
            MSG msg{inside->m_hWnd, WM_KEYDOWN, key, 0};
            EXPECT_EQ(control.PreTranslateMessage(&msg), 0);
        }
    }
    EXPECT_EQ(control.told, 0);
}

TEST_F(SliderPanelTest, LayoutLeavesTheSliderAsTheToolkitPlacedIt) {
    EXPECT_EQ(control.UpdateLayout(1), 1);
    CRect placed;
    control.GetToolPanelItem(1)->GetRect(placed, kItemClientRect);
    const CRect slider = control.slider().GetWindowRect();
    EXPECT_EQ(slider.Width(), (kWidth - kIconWidth) / 2);
    EXPECT_EQ(slider.Width(), placed.Width());
    EXPECT_EQ(control.ScreenToClient({slider.left, slider.top}).x, kIconWidth);
}

TEST_F(SliderPanelTest, AnswersTheToolkitsQueries) {
    EXPECT_EQ(control.SendMessage(1567), 1);
    EXPECT_EQ(control.SendMessage(1571), 1);
}

}  // namespace
