#include "workbench/windows/window_tree_text.h"

#include "tests/workbench/windows/window_fixture.h"

#include <gmock/gmock.h>

namespace workbench {

namespace {

class WindowTreeTextTest : public WindowTest {};

class DescribedWidget : public Widget {
public:
    std::string describe(const Window&) const override { return "position 50"; }
};

}  // namespace

TEST_F(WindowTreeTextTest, EachWindowIsALineBelowItsParent) {
    CWnd top;
    CWnd slider;
    CWnd edit;
    ASSERT_TRUE(make(top));
    ASSERT_TRUE(make(slider, &top, 10001, std::make_unique<DescribedWidget>(), "Slider"));
    ASSERT_TRUE(make(edit, &top, 0, nullptr, "Edit"));
    windows().setName(top.m_hWnd, "FadeSlider");
    edit.SetWindowText(L"50%");
    edit.SetFocus();
    slider.EnableWindow(0);
    slider.ShowWindow(SW_HIDE);
    EXPECT_THAT(treeText(windows(), windows().focus()),
                testing::EndsWith("Test [FadeSlider] (10,20 100x50)\n"
                                  "  Slider #10001 (10,20 100x50) hidden disabled position 50\n"
                                  "  Edit \"50%\" (10,20 100x50) focus\n"));
}

}  // namespace workbench
