#include "workbench/host/host_texts.h"

#include "tests/workbench/host/test_options.h"
#include "workbench/host/workbench.h"
#include "workbench/loader/module_loader.h"

#include <hostapi/window/module.h>

#include <gtest/gtest.h>

namespace workbench {

class HostTextsTest : public testing::Test {
protected:
    Workbench bench{testOptions(PROJECT_SOURCE_ROOT "/examples/panels.json")};
    HostTexts texts{bench};
};

TEST_F(HostTextsTest, ALabelIsThatOfTheMenu) {
    const VxToolPanelData* items = vxedGetToolPanelData(L"HOUSETOOLS", L"ExampleModule");
    ASSERT_NE(items, nullptr);
    EXPECT_EQ(texts.labelOf(items->front()), L"Count the clicks");
    EXPECT_EQ(texts.labelOf(nullptr), L"");
}

TEST_F(HostTextsTest, ATextIsTracedToTheStringThatWasHandedOut) {
    AfxSetResourceHandle(bench.modules().libraries().load(L"VxDashboardRes.dll"));
    VxString text;
    ASSERT_NE(LoadString(203, text), 0);
    EXPECT_EQ(texts.resourceNumberOf(text), 203);
    EXPECT_EQ(texts.resourceNumberOf(L"a text from elsewhere"), std::nullopt);
}

}  // namespace workbench
