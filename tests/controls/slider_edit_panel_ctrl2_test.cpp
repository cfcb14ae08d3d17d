#include "controls/slider_edit_panel_ctrl2.h"

#include "tests/controls/slider_edit_fixture.h"

#include <string>
#include <vector>

namespace {

TEST_F(SliderEditTest, TwoFieldsAreMadeAlikeUnderTheirOwnIds) {
    const support::FirstRects firstRects(bench().windows());
    TwoFields control(Row::OneItem);
    create(control, 300);
    forget();
    EXPECT_EQ(control.CreateEditPart(), 1);
    EXPECT_EQ(
        calls("CQrUiInputEditCtrl::Create"),
        (std::vector<std::string>{"CQrUiInputEditCtrl::Create(1350631552, object, 10001, 0)",
                                  "CQrUiInputEditCtrl::Create(1350631552, object, 10002, 0)"}));
    ASSERT_EQ(control.GetToolPanelItemCount(), 5);
    for (const int field : {2, 4}) {
        EXPECT_EQ(firstRects.of(control.GetToolPanelItem(field)->GetControl()),
                  (CRect{0, 0, 16, 16}));
    }
    control.DestroyWindow();
}

TEST_F(SliderEditTest, FailedFirstOfTwoFieldsEndsTheRowAfterItsBreak) {
    TwoFields control(Row::OneItem);
    create(control, 300);
    fail("CQrUiInputEditCtrl::Create");
    EXPECT_EQ(control.CreateEditPart(), 0);
    ASSERT_EQ(control.GetToolPanelItemCount(), 2);
    EXPECT_EQ(control.GetToolPanelItem(1)->GetType(), kItemRowBreak);
    control.DestroyWindow();
}

TEST_F(SliderEditTest, FailedSecondOfTwoFieldsLeavesTheFirstAndTheSeparator) {
    TwoFields control(Row::OneItem);
    create(control, 300);
    failSecond("CQrUiInputEditCtrl::Create");
    EXPECT_EQ(control.CreateEditPart(), 0);
    ASSERT_EQ(control.GetToolPanelItemCount(), 4);
    EXPECT_EQ(control.GetToolPanelItem(2)->GetControl(), control.edit().m_hWnd);
    EXPECT_EQ(control.GetToolPanelItem(3)->GetType(), kItemSeparator);
    control.DestroyWindow();
}

TEST_F(SliderEditTest, TwoFieldsStandInASecondRowAndAreNotSharedOut) {
    TwoFields control(Row::Whole);
    create(control, 300);
    ASSERT_EQ(control.GetToolPanelItemCount(), 6);
    const int types[] = {kItemButton,  kItemControl,   kItemRowBreak,
                         kItemControl, kItemSeparator, kItemControl};
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(control.GetToolPanelItem(i)->GetType(), types[i]);
    EXPECT_EQ(control.GetToolPanelItem(2)->GetID(), L"TPB_VXDA_SLIDER_ROWBREAK");
    EXPECT_EQ(control.GetToolPanelItem(4)->GetID(), L"TPB_VXDA_SLIDER_SEPARATOR");
    EXPECT_EQ(widthOf(control.slider()), 300 - kIconWidth);
    control.DestroyWindow();
}

TEST_F(SliderEditTest, LayoutOfTwoFieldsAnswersOneAndNeverPaintsAnew) {
    TwoFields control(Row::Whole);
    create(control, 300);
    forget();
    EXPECT_EQ(repaintsOfLayout(control, 1), 0) << "the argument is not looked at";
    EXPECT_EQ(calls("CWnd::SetWindowPos"), std::vector<std::string>{});
    control.DestroyWindow();
}

TEST_F(SliderEditTest, KeysInEitherOfTwoFieldsNameTheirField) {
    TwoFields control(Row::Whole);
    create(control, 300);
    CWnd* second = CWnd::FromHandle(control.GetToolPanelItem(5)->GetControl());
    second->SetFocus();
    EXPECT_EQ(press(control, VK_RETURN), 1);
    EXPECT_EQ(press(control, VK_ESCAPE), 1);
    control.edit().SetFocus();
    EXPECT_EQ(press(control, VK_RETURN), 1);
    const auto firstWindow = reinterpret_cast<LPARAM>(control.edit().m_hWnd);
    const auto secondWindow = reinterpret_cast<LPARAM>(second->m_hWnd);
    EXPECT_EQ(control.told, (std::vector<TwoFields::Told>{
                                {WM_DA_EDIT_ENTER, WPARAM{kSecondEditId}, secondWindow},
                                {WM_DA_EDIT_ESCAPE, WPARAM{kSecondEditId}, secondWindow},
                                {WM_DA_EDIT_ENTER, WPARAM{kFirstEditId}, firstWindow}}));
    AfxGetMainWnd()->SetFocus();
    EXPECT_EQ(press(control, VK_RETURN), 0);
    control.DestroyWindow();
}

}  // namespace
