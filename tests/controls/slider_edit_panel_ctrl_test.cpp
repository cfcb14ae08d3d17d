#include "controls/slider_edit_panel_ctrl.h"

#include "tests/controls/slider_edit_fixture.h"

#include <string>
#include <vector>

namespace {

// Layout

class RowWidthTest : public SliderEditTest, public testing::WithParamInterface<int> {};

TEST_P(RowWidthTest, SliderTakesTwoThirdsAndTheFieldWhatIsLeft) {
    OneField control(Row::Whole);
    create(control, GetParam());
    // The toolkit has given slider and field all that icon and separator leave.
    const int shared = GetParam() - kIconWidth - kSeparatorWidth;
    const int sliderWidth = 2 * (shared / 2 + (shared - shared / 2)) / 3;
    EXPECT_EQ(widthOf(control.slider()), sliderWidth);
    EXPECT_EQ(leftOf(control.slider()), kIconWidth);
    EXPECT_EQ(control.GetToolPanelItem(2)->GetPosition().x, kIconWidth + sliderWidth);
    EXPECT_EQ(leftOf(control.edit()), kIconWidth + sliderWidth + kSeparatorWidth);
    EXPECT_EQ(widthOf(control.edit()), GetParam() - kIconWidth - sliderWidth - kSeparatorWidth);
    control.DestroyWindow();
}

INSTANTIATE_TEST_SUITE_P(Widths, RowWidthTest, testing::Values(150, 211, 300, 301, 640));

TEST_F(SliderEditTest, SliderAndFieldOf120And60KeepTheirShare) {
    constexpr int kShared = 120 + 60;
    OneField control(Row::Whole);
    create(control, kIconWidth + kSeparatorWidth + kShared);
    EXPECT_EQ(widthOf(control.slider()), 120);
    EXPECT_EQ(widthOf(control.edit()), 60);
}

TEST_F(SliderEditTest, SecondLayoutChangesNothing) {
    OneField control(Row::Whole);
    create(control, 301);
    const int slider = widthOf(control.slider());
    const int edit = widthOf(control.edit());
    control.UpdateLayout(0);
    EXPECT_EQ(widthOf(control.slider()), slider);
    EXPECT_EQ(widthOf(control.edit()), edit);
}

TEST_F(SliderEditTest, LayoutSizesTheSliderInItsPlaceAndThenSetsTheFieldBehindTheSeparator) {
    OneField control(Row::Whole);
    create(control, 300);
    const CRect slider = rectOf(control.slider());
    const CRect edit = rectOf(control.edit());
    ASSERT_NE(edit.top, 0) << "or a lost place would not show";
    CRect place;
    control.GetToolPanelItem(3)->GetRect(place, kItemClientRect);
    EXPECT_EQ(edit.Height(), place.Height());
    control.GetToolPanelItem(1)->GetRect(place, kItemClientRect);
    EXPECT_EQ(slider.Height(), place.Height());
    forget();
    control.UpdateLayout(0);
    EXPECT_EQ(rectOf(control.slider()), slider);
    EXPECT_EQ(rectOf(control.edit()), edit);
    const auto size = [](const CRect& rect) {
        return std::to_string(rect.Width()) + ", " + std::to_string(rect.Height());
    };
    EXPECT_EQ(calls("CWnd::SetWindowPos"),
              (std::vector<std::string>{
                  "CWnd::SetWindowPos(\"CQrUiProgSliderCtrl\", 0, 0, " + size(slider) + ", 22)",
                  "CWnd::SetWindowPos(\"CQrUiInputEditCtrl\", " + std::to_string(edit.left) + ", " +
                      std::to_string(edit.top) + ", " + size(edit) + ", 20)"}));
    control.DestroyWindow();
}

TEST_F(SliderEditTest, LayoutPaintsAnewOnlyIfItIsAskedTo) {
    OneField control(Row::Whole);
    create(control, 300);
    EXPECT_EQ(repaintsOfLayout(control, 0), 0);
    EXPECT_EQ(repaintsOfLayout(control, 1), 1);
    control.DestroyWindow();
}

TEST_F(SliderEditTest, WithoutASeparatorTheFieldBeginsAtTheSlidersRightEdge) {
    OneField control(Row::NoSeparator);
    create(control, 300);
    EXPECT_EQ(leftOf(control.edit()), leftOf(control.slider()) + widthOf(control.slider()));
    control.DestroyWindow();
}

TEST_F(SliderEditTest, LayoutWithoutAFieldAnswersOneAndLeavesTheSlider) {
    OneField control(Row::OneItem);
    create(control, 300);
    const int before = widthOf(control.slider());
    EXPECT_EQ(control.UpdateLayout(1), 1);
    EXPECT_EQ(widthOf(control.slider()), before);
    control.DestroyWindow();
}

TEST_F(SliderEditTest, LayoutWithoutASliderAnswersOneAndLeavesTheField) {
    OneField control(Row::FieldWithoutSlider);
    create(control, 300);
    forget();
    EXPECT_EQ(control.UpdateLayout(1), 1);
    EXPECT_EQ(calls("CWnd::SetWindowPos"), std::vector<std::string>{});
    EXPECT_EQ(rectOf(control.edit()), (CRect{0, 0, 16, 16}));
    control.DestroyWindow();
}

TEST_F(SliderEditTest, OneItemOnlyIsNotCountedSoTheFieldIsAsWideAsTheControl) {
    constexpr int kWidth = 300;
    OneField control(Row::OneItemAndField);
    create(control, kWidth);
    ASSERT_EQ(control.GetToolPanelItemCount(), 1);
    EXPECT_EQ(widthOf(control.edit()), kWidth);
    EXPECT_EQ(leftOf(control.edit()), widthOf(control.slider()));
    control.DestroyWindow();
}

TEST_F(SliderEditTest, LastItemIsNeitherMovedNorCountedEvenIfASeparator) {
    constexpr int kWidth = 300;
    OneField control(Row::TwoSeparatorsAndField);
    create(control, kWidth);
    const int sliderWidth = widthOf(control.slider());
    EXPECT_EQ(control.GetToolPanelItem(1)->GetPosition().x, sliderWidth);
    EXPECT_EQ(control.GetToolPanelItem(2)->GetPosition().x, kWidth - kSeparatorWidth);
    EXPECT_EQ(leftOf(control.edit()), sliderWidth + kSeparatorWidth);
    EXPECT_EQ(widthOf(control.edit()), kWidth - sliderWidth - kSeparatorWidth);
    control.DestroyWindow();
}

TEST_F(SliderEditTest, NarrowRowGivesTheFieldNoWidthInsteadOfANegativeOne) {
    OneField control(Row::Whole);
    create(control, 20);
    EXPECT_EQ(widthOf(control.edit()), 0);
    control.DestroyWindow();
}

// Keys

TEST_F(SliderEditTest, EnterAndEscapeInTheFieldReachTheControlAndAreConsumed) {
    OneField control(Row::Whole);
    create(control, 300);
    control.edit().SetFocus();
    EXPECT_EQ(press(control, VK_RETURN), 1);
    EXPECT_EQ(press(control, VK_ESCAPE), 1);
    const auto edit = reinterpret_cast<LPARAM>(control.edit().m_hWnd);
    EXPECT_EQ(control.told,
              (std::vector<OneField::Told>{{WM_DA_EDIT_ENTER, WPARAM{kFirstEditId}, edit},
                                           {WM_DA_EDIT_ESCAPE, WPARAM{kFirstEditId}, edit}}));
    control.DestroyWindow();
}

TEST_F(SliderEditTest, KeysWhileNothingHasTheFocusGoTheOrdinaryWay) {
    OneField control(Row::Whole);
    create(control, 300);
    bench().windows().setFocus(nullptr);
    EXPECT_EQ(press(control, VK_RETURN), 0);
    EXPECT_EQ(press(control, VK_ESCAPE), 0);
    EXPECT_TRUE(control.told.empty());
    control.DestroyWindow();
}

TEST_F(SliderEditTest, OtherKeysGoTheOrdinaryWay) {
    OneField control(Row::Whole);
    create(control, 300);
    control.edit().SetFocus();
    EXPECT_EQ(press(control, 'A'), 0);
    EXPECT_TRUE(control.told.empty());
    control.DestroyWindow();
}

TEST_F(SliderEditTest, CharactersThatAreNoKeysGoTheOrdinaryWay) {
    constexpr UINT kCharacter = 0x102;
    OneField control(Row::Whole);
    create(control, 300);
    control.edit().SetFocus();
    EXPECT_EQ(press(control, VK_RETURN, kCharacter), 0);
    EXPECT_EQ(press(control, VK_ESCAPE, kCharacter), 0);
    EXPECT_TRUE(control.told.empty());
    control.DestroyWindow();
}

TEST_F(SliderEditTest, EnterOutsideTheFieldGoesTheOrdinaryWay) {
    OneField control(Row::Whole);
    create(control, 300);
    control.slider().SetFocus();
    EXPECT_EQ(press(control, VK_RETURN), 0);
    AfxGetMainWnd()->SetFocus();
    EXPECT_EQ(press(control, VK_RETURN), 0);
    EXPECT_TRUE(control.told.empty());
    control.DestroyWindow();
}

TEST_F(SliderEditTest, ControlAnswersTheToolkitsQueries) {
    OneField control(Row::Whole);
    create(control, 300);
    EXPECT_EQ(control.SendMessage(1567), 1);
    EXPECT_EQ(control.SendMessage(1571), 1);
    EXPECT_EQ(control.SendMessage(1566), 0);
    control.DestroyWindow();
}

// The edit part

TEST_F(SliderEditTest, FieldIsMadeSmallWithABorderAndATabStop) {
    const support::FirstRects firstRects(bench().windows());
    OneField control(Row::OneItem);
    create(control, 300);
    forget();
    EXPECT_EQ(control.CreateEditPart(), 1);
    EXPECT_EQ(calls("CQrUiInputEditCtrl::Create"),
              std::vector<std::string>{"CQrUiInputEditCtrl::Create(1350631552, object, 10001, 0)"});
    EXPECT_EQ(firstRects.of(control.edit().m_hWnd), (CRect{0, 0, 16, 16}));
    ASSERT_EQ(control.GetToolPanelItemCount(), 3);
    EXPECT_EQ(control.GetToolPanelItem(1)->GetType(), kItemSeparator);
    EXPECT_EQ(control.GetToolPanelItem(2)->GetControl(), control.edit().m_hWnd);
    control.DestroyWindow();
}

// Failures

TEST_F(SliderEditTest, FailedFieldAnswersZeroBehindItsSeparator) {
    OneField control(Row::OneItem);
    create(control, 300);
    fail("CQrUiInputEditCtrl::Create");
    EXPECT_EQ(control.CreateEditPart(), 0);
    ASSERT_EQ(control.GetToolPanelItemCount(), 2);
    EXPECT_EQ(control.GetToolPanelItem(1)->GetType(), kItemSeparator);
    control.DestroyWindow();
}

}  // namespace
