#include "workbench/toolkit/button_widget.h"

#include "tests/workbench/toolkit/dropdown_fixture.h"

namespace workbench {
namespace {

class ButtonWidgetTest : public DropdownTest {
protected:
    ButtonWidgetTest() { openDropdown(); }

    TestCheck& check() { return m_combo.dropdown->check; }
};

TEST_F(ButtonWidgetTest, AClickTakesTheKeyboardAndIsToldToTheButtonItself) {
    click(check(), {5, 5});
    EXPECT_EQ(check().clicks, 1);
    EXPECT_EQ(CWnd::GetFocus(), &check());
    EXPECT_EQ(check().SendMessage(BM_GETCHECK), 1);
}

TEST_F(ButtonWidgetTest, AReleaseBesideTheButtonIsNoClick) {
    toolkit().mouse().press(check().m_hWnd, {5, 5});
    toolkit().mouse().release(check().m_hWnd, {5, -40});
    EXPECT_EQ(check().clicks, 0);
    toolkit().mouse().release(check().m_hWnd, {5, 5});
    EXPECT_EQ(check().clicks, 0);
}

TEST_F(ButtonWidgetTest, TheSpaceBarIsAClick) {
    check().SetFocus();
    type(L" x");
    EXPECT_EQ(check().clicks, 1);
}

TEST_F(ButtonWidgetTest, EachPressOfADoubleClickCounts) {
    toolkit().mouse().doubleClick(check().m_hWnd, {5, 5});
    EXPECT_EQ(check().clicks, 2);
}

TEST_F(ButtonWidgetTest, AnOwnerDrawnButtonDrawsWhatItIsNow) {
    const CRect client = check().GetClientRect();
    const auto drawn = drawingOf(toolkit(), check().m_hWnd);
    ASSERT_EQ(drawn.size(), 2U);
    EXPECT_EQ(std::get<FillStep>(drawn[0]), (FillStep{client, 0x0000ff}));
    EXPECT_EQ(std::get<TextStep>(drawn[1]),
              (TextStep{client, L"Invert", GetSysColor(COLOR_WINDOWTEXT),
                        DT_SINGLELINE | DT_VCENTER, 0}));
    click(check(), {5, 5});
    EXPECT_EQ(std::get<FillStep>(drawingOf(toolkit(), check().m_hWnd)[0]).colour, 0x00ff00U);
}

TEST_F(ButtonWidgetTest, OtherWindowsDrawNothing) {
    EXPECT_TRUE(drawingOf(toolkit(), m_combo.m_hWnd).empty());
    EXPECT_TRUE(drawingOf(toolkit(), nullptr).empty());
}

TEST_F(ButtonWidgetTest, LeavingIsToldOnceAfterItWasAskedFor) {
    toolkit().mouse().move(m_combo.dropdown->tree.m_hWnd, {5, 5});
    EXPECT_EQ(check().leaves, 0);
    toolkit().mouse().move(check().m_hWnd, {5, 5});
    toolkit().mouse().move(check().m_hWnd, {6, 5});
    EXPECT_EQ(check().leaves, 0);
    toolkit().mouse().move(m_combo.dropdown->tree.m_hWnd, {5, 5});
    EXPECT_EQ(check().leaves, 1);
    toolkit().mouse().leave();
    EXPECT_EQ(check().leaves, 1);
    toolkit().mouse().move(check().m_hWnd, {5, 5});
    toolkit().mouse().leave();
    EXPECT_EQ(check().leaves, 2);
}

}  // namespace
}  // namespace workbench
