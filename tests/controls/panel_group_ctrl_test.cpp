#include "controls/panel_group_ctrl.h"

#include "tests/support/call_lines.h"
#include "tests/support/control_bench.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace {

/// A custom control and the part that it can't be without.
struct ControlCase {
    const char* name;
    const char* part;  // the host call that makes it
};

void PrintTo(const ControlCase& row, std::ostream* out) {
    *out << row.name;
}

class PanelGroupTest : public support::ControlBench,
                       public testing::WithParamInterface<ControlCase> {
protected:
    void SetUp() override { useMenuOf(GetParam().name); }
    bool isThere() { return control(GetParam().name) != nullptr; }
};

TEST_P(PanelGroupTest, ToolkitsQueriesAreAnsweredOne) {
    showControl(GetParam().name);
    EXPECT_EQ(send(1567), 1);
    EXPECT_EQ(send(1571), 1);
    EXPECT_EQ(send(1566), 0) << "nothing of it keeps the focus";
}

TEST_P(PanelGroupTest, ToolkitTakesTheCreationsRecordFirst) {
    std::vector<std::string> calls;
    const auto listening =
        bench().journal().addListener([&calls](const workbench::JournalRecord& record) {
            for (const std::string& call :
                 support::callLines({record}, {"CQrUiToolPanel::OnCreate"}))
                calls.push_back(call);
            if (record.field("name") == workbench::Value(GetParam().part))
                calls.emplace_back("part");
        });
    showControl(GetParam().name);
    ASSERT_GE(calls.size(), 2U);
    EXPECT_EQ(calls[0], "CQrUiToolPanel::OnCreate(object)");
    EXPECT_EQ(calls[1], "part");
}

TEST_P(PanelGroupTest, IsNotThereIfTheToolkitFails) {
    fail("CQrUiToolPanel::OnCreate");
    showDashboard();
    EXPECT_FALSE(isThere());
    EXPECT_THAT(takeCalls(), testing::Not(testing::Contains(GetParam().part)));
    EXPECT_NE(panel(L"P"), nullptr);
}

TEST_P(PanelGroupTest, IsNotThereWithoutItsPart) {
    fail(GetParam().part);
    showDashboard();
    EXPECT_FALSE(isThere());
    EXPECT_NE(panel(L"P"), nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Controls, PanelGroupTest,
    testing::Values(ControlCase{"LayerLockTransparencySliderControl",
                                "CQrUiProgSliderCtrl::Create"},
                    ControlCase{"3DNavZoomSliderControl", "CQrUiProgSliderCtrl::Create"},
                    ControlCase{"3DNavStepSizeSliderControl", "CQrUiProgSliderCtrl::Create"},
                    ControlCase{"3DNavStepsPerSecSliderControl", "CQrUiProgSliderCtrl::Create"},
                    ControlCase{"3DNavViewComboCtrl", "CQrUiComboCtrl::Create"},
                    ControlCase{"3DNavPointTriplet1", "CQrUiCtrlContainer::Create"},
                    ControlCase{"3DNavPointTriplet2", "CQrUiCtrlContainer::Create"}));

}  // namespace
