#include "tests/workbench/modules/VxExampleTools.qlx/example_tools_fixture.h"
#include "workbench/gestures/slider_gestures.h"

namespace workbench {

using ScaleControlTest = ExampleToolsTest;

TEST_F(ScaleControlTest, AGestureWritesTheVariable) {
    const HWND control = makeControl();
    panel.UpdateLayout(0);
    EXPECT_TRUE(gestures::dragSlider(bench.toolkit(), sliderOf(control)->m_hWnd, {25}));
    gestures::releaseSlider(bench.toolkit(), sliderOf(control)->m_hWnd);
    EXPECT_DOUBLE_EQ(bench.editor().read(L"LTSCALE").asReal(), 2.5);
}

TEST_F(ScaleControlTest, AChangeOfTheVariableMovesTheThumb) {
    const HWND control = makeControl();
    bench.editor().set(L"LTSCALE", 4.0);
    broadcastChange(control, L"CLAYER");
    EXPECT_EQ(sliderOf(control)->GetSliderPos(), 10);
    broadcastChange(control, L"LTSCALE");
    EXPECT_EQ(sliderOf(control)->GetSliderPos(), 40);
    bench.editor().set(L"LTSCALE", 500.0);
    broadcastChange(control, L"LTSCALE");
    EXPECT_EQ(sliderOf(control)->GetSliderPos(), 100);
}

TEST_F(ScaleControlTest, AnotherDrawingBringsItsOwnScale) {
    const HWND control = makeControl();
    bench.editor().set(L"LTSCALE", 4.0);
    bench.editor().documents().create(L"Drawing2");
    SendMessage(control, 1726, 0, 0);
    EXPECT_EQ(sliderOf(control)->GetSliderPos(), 10);
}

}  // namespace workbench
