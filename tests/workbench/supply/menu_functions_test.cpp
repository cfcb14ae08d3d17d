#include "tests/workbench/host/test_options.h"
#include "workbench/menu/menu_host.h"

#include <hostapi/zorq/menu_data.h>

#include <gtest/gtest.h>

#include <vector>

namespace workbench {

class NoMenuFunctionsTest : public testing::Test {
protected:
    Workbench bench{testOptions()};
};

class MenuFunctionsTest : public testing::Test {
protected:
    Workbench bench{testOptions(PROJECT_SOURCE_ROOT "/examples/panels.json")};
};

TEST_F(NoMenuFunctionsTest, AHostWithoutMenuAnswersNothing) {
    std::vector<VxWsPanelData> panels{{L"before", L"before"}};
    EXPECT_EQ(vxedGetPanelSetData(), nullptr);
    EXPECT_EQ(vxedGetToolPanelData(L"ZORQ", L"LayerTools"), nullptr);
    EXPECT_FALSE(vxedGetWorkspacePanelData(panels));
    EXPECT_EQ(panels.size(), 1U);
    EXPECT_EQ(vxedGetPanelSetResourceHandle(L"ZORQ"), nullptr);
}

TEST_F(MenuFunctionsTest, AnswersComeFromTheMenu) {
    EXPECT_EQ(vxedGetPanelSetData(), bench.menu().records().panels());
    EXPECT_EQ(vxedGetToolPanelData(L"ZORQ", L"LayerTools"),
              bench.menu().records().toolPanel("ZORQ", "LayerTools"));
    EXPECT_NE(vxedGetPanelSetResourceHandle(L"HOUSETOOLS"), nullptr);
}

TEST_F(MenuFunctionsTest, TheListOfVisiblePanelsIsReplaced) {
    std::vector<VxWsPanelData> panels{{L"before", L"before"}};
    EXPECT_TRUE(vxedGetWorkspacePanelData(panels));
    ASSERT_FALSE(panels.empty());
    EXPECT_EQ(panels.front().panelId, L"Layers");
    EXPECT_EQ(panels.front().menuGroup, L"ZORQ");
}

TEST_F(MenuFunctionsTest, TheRefreshFlagIsRaisedAndReset) {
    EXPECT_FALSE(vxedGetPanelRefreshFromWS());
    vxedSetPanelRefreshFromWS(true);
    EXPECT_TRUE(vxedGetPanelRefreshFromWS());
    vxedSetPanelRefreshFromWS(false);
    EXPECT_FALSE(vxedGetPanelRefreshFromWS());
}

TEST_F(MenuFunctionsTest, TheCustomizationDialogIsInstalled) {
    EXPECT_EQ(zorqiGetCustomizationInterface(), &bench.menu().customization());
}

TEST_F(MenuFunctionsTest, TheCallsCanBeToldToFail) {
    std::vector<VxWsPanelData> panels;
    bench.faults().fail("vxedGetPanelSetData", {}, 1);
    EXPECT_EQ(vxedGetPanelSetData(), nullptr);
    bench.faults().fail("vxedGetToolPanelData", {}, 1);
    EXPECT_EQ(vxedGetToolPanelData(L"ZORQ", L"LayerTools"), nullptr);
    bench.faults().fail("vxedGetWorkspacePanelData", {}, 1);
    EXPECT_FALSE(vxedGetWorkspacePanelData(panels));
    bench.faults().fail("vxedGetPanelSetResourceHandle", {}, 1);
    EXPECT_EQ(vxedGetPanelSetResourceHandle(L"HOUSETOOLS"), nullptr);
    bench.faults().fail("zorqiGetCustomizationInterface", {}, 1);
    EXPECT_EQ(zorqiGetCustomizationInterface(), nullptr);
}

}  // namespace workbench
