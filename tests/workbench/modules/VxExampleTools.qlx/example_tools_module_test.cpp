#include "tests/workbench/modules/VxExampleTools.qlx/example_tools_fixture.h"

namespace workbench {

using ExampleToolsModuleTest = ExampleToolsTest;

TEST_F(ExampleToolsModuleTest, MakesItsControlInTheGivenPanel) {
    const HWND control = makeControl();
    ASSERT_NE(control, nullptr);
    EXPECT_EQ(CWnd::FromHandle(control)->GetParent(), &panel);
    ASSERT_NE(sliderOf(control), nullptr);
    EXPECT_EQ(sliderOf(control)->GetSliderPos(), 10);
}

TEST_F(ExampleToolsModuleTest, MakesNothingForAnotherNameOrADeadPanel) {
    EXPECT_EQ(makeControl(L"examplescalecontrol"), nullptr);
    EXPECT_EQ(makeControl(nullptr), nullptr);
    panel.DestroyWindow();
    EXPECT_EQ(makeControl(), nullptr);
}

TEST_F(ExampleToolsModuleTest, UnloadingTakesTheWindowsAlongAndTheNextLoadStartsFresh) {
    CQrUiToolPanelItem& button = addButton(L"ID_ExampleCount");
    click(&button);
    const HWND control = makeControl();
    EXPECT_TRUE(bench.modules().unloadModule(kModule));
    EXPECT_EQ(IsWindow(control), 0);
    EXPECT_TRUE(bench.modules().libraries().stillMapped().empty());

    ASSERT_TRUE(bench.modules().loadModule(kModule));
    click(&button);
    EXPECT_EQ(button.GetName(), L"1 click");
}

TEST_F(ExampleToolsModuleTest, AControlWhosePanelWentDoesNotDisturbTheNext) {
    makeControl();
    panel.DestroyWindow();
    const CRect rect{0, 0, 240, 40};
    ASSERT_NE(panel.Create(WS_CHILD | WS_VISIBLE, rect, vxedGetZorqFrame(), 1, 0), 0);
    EXPECT_NE(makeControl(), nullptr);
}

}  // namespace workbench
