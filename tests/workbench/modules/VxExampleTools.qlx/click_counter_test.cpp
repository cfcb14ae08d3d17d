#include "tests/workbench/modules/VxExampleTools.qlx/example_tools_fixture.h"

namespace workbench {

using ClickCounterTest = ExampleToolsTest;

TEST_F(ClickCounterTest, ClicksAreCountedInTheToolsName) {
    CQrUiToolPanelItem& button = addButton(L"ID_ExampleCount");
    click(&button);
    EXPECT_EQ(button.GetName(), L"1 click");
    click(&button);
    EXPECT_EQ(button.GetName(), L"2 clicks");
}

TEST_F(ClickCounterTest, AnotherToolIsLeftAlone) {
    CQrUiToolPanelItem& button = addButton(L"ID_Other");
    button.SetName(L"Other");
    click(&button);
    click(nullptr);
    EXPECT_EQ(button.GetName(), L"Other");
}

}  // namespace workbench
