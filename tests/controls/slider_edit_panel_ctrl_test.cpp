#include "controls/slider_edit_panel_ctrl.h"

#include "controls/edit_messages.h"
#include "controls/row_items.h"
#include "controls/slider_edit_panel_ctrl2.h"
#include "tests/palette/palette_fixture.h"
#include "tests/support/call_lines.h"
#include "tests/support/first_rects.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/window/frame.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace {

constexpr int kIconWidth = 22;      // pixels, the toolkit's at 16-pixel icons
constexpr int kSeparatorWidth = 6;  // pixels

/// What stands in the row. In the last three the edit field is there, but is no item of it; the last
/// has no slider.
enum class Row {
    Whole,
    NoSeparator,
    OneItem,
    OneItemAndField,
    TwoSeparatorsAndField,
    FieldWithoutSlider
};

bool hasIcon(Row row) {
    return row == Row::Whole || row == Row::NoSeparator;
}

/// A control of the test's own: its row, and a record of what its edit fields told it.
template <class Base>
class TestControl final : public Base {
public:
    explicit TestControl(Row row) : Base(nullptr), m_row(row) {}

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_CREATE)
            return create(reinterpret_cast<const CREATESTRUCT*>(lParam));
        if (message == WM_DA_EDIT_ENTER || message == WM_DA_EDIT_ESCAPE) {
            told.push_back({message, wParam, lParam});
            return 0;
        }
        return Base::WindowProc(message, wParam, lParam);
    }

    struct Told {
        UINT message;
        WPARAM id;
        LPARAM window;
        friend bool operator==(const Told&, const Told&) = default;
    };
    std::vector<Told> told;
    CQrUiProgSliderCtrl& slider() { return this->m_slider; }
    CQrUiInputEditCtrl& edit() { return this->m_edit; }

private:
    LRESULT create(const CREATESTRUCT* creation) {
        if (this->OnCreate(creation) == -1)
            return -1;
        if (m_row == Row::FieldWithoutSlider) {
            this->createEdit(this->m_edit, kFirstEditId);
            return 0;
        }
        this->m_slider.Create(WS_CHILD | WS_VISIBLE, {0, 0, 10, 10}, this, 10001, 2);
        if (hasIcon(m_row))
            addIconItem(this, L"TPB_TEST", L"RCDATA_NONE");
        addControlItem(this, this->m_slider.m_hWnd);
        if (m_row == Row::Whole)
            this->CreateEditPart();
        if (m_row == Row::NoSeparator) {
            this->createEdit(this->m_edit, kFirstEditId);
            addControlItem(this, this->m_edit.m_hWnd);
        }
        if (m_row == Row::OneItemAndField || m_row == Row::TwoSeparatorsAndField)
            this->createEdit(this->m_edit, kFirstEditId);
        if (m_row == Row::TwoSeparatorsAndField) {
            addSeparatorItem(this);
            addSeparatorItem(this);
        }
        return 0;
    }

    Row m_row;
};

using OneField = TestControl<CVxDaSliderEditPanelCtrl>;
using TwoFields = TestControl<CVxDaSliderEditPanelCtrl2>;

class SliderEditTest : public PaletteTest {
protected:
    void SetUp() override { load(); }

    template <class Control>
    void create(Control& control, int width) {
        ASSERT_TRUE(
            control.Create(WS_CHILD | WS_VISIBLE, {0, 0, width, 60}, AfxGetMainWnd(), 900, 0));
        control.UpdateLayout(1);
    }
    static int widthOf(const CWnd& window) { return window.GetWindowRect().Width(); }
    static int leftOf(const CWnd& window) {
        const CRect rect = window.GetWindowRect();
        return window.GetParent()->ScreenToClient({rect.left, rect.top}).x;
    }
    static CRect rectOf(const CWnd& window) {
        return workbench::Workbench::current().windows().find(window.m_hWnd)->rect;
    }
    template <class Control>
    BOOL press(Control& control, WPARAM key, UINT message = WM_KEYDOWN) {
        MSG msg{control.m_hWnd, message, key, 0};
        return control.PreTranslateMessage(&msg);
    }
    /// The host calls of a name since the journal was forgotten.
    std::vector<std::string> calls(std::string_view name) {
        return support::callLines(bench().journal().records(), {name});
    }
    /// Lays a control out that stands as it should, and tells how often it was asked to be painted.
    template <class Control>
    std::ptrdiff_t repaintsOfLayout(Control& control, BOOL invalidate) {
        std::vector<HWND> touched;
        bench().windows().setObserver([&touched](HWND window) { touched.push_back(window); });
        EXPECT_EQ(control.UpdateLayout(invalidate), 1);
        bench().windows().setObserver(nullptr);
        return std::count(touched.begin(), touched.end(), control.m_hWnd);
    }
};

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

// Two fields

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

// Row items

TEST_F(SliderEditTest, RowItemsOfNoControlAreNone) {
    EXPECT_EQ(addRowBreakItem(nullptr), 0);
    EXPECT_EQ(addSeparatorItem(nullptr), 0);
    EXPECT_EQ(addControlItem(nullptr, nullptr), 0);
    EXPECT_EQ(addIconItem(nullptr, L"x", L"y"), nullptr);
    OneField control(Row::OneItem);
    create(control, 300);
    EXPECT_EQ(addControlItem(&control, nullptr), 0);
    control.DestroyWindow();
}

}  // namespace
