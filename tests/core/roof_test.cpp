#include "core/roof.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <utility>

namespace {

/// Counts its runs and its end.
class CountingAction final : public QuiescentAction {
public:
    CountingAction(int& runs, int& ends) : m_runs(runs), m_ends(ends) {}
    ~CountingAction() override { ++m_ends; }
    void run() override { ++m_runs; }

private:
    int& m_runs;
    int& m_ends;
};

class StandInDashboard final : public DashboardRoof {
public:
    bool isDashboardVisible() const override { return visible; }
    CVxDaPanelSet* panelSet() const override { return panels; }
    void visibilityChanged(BOOL /*visible*/) override {}

    bool visible = false;
    CVxDaPanelSet* panels = nullptr;
};

/// Keeps what it is given to run.
class StandInControls final : public ControlRoof {
public:
    HWND createControl(const VxString& /*name*/, CWnd* /*parent*/) override { return nullptr; }
    int handleToolClick(CQrUiToolPanelItem* /*item*/) override { return 0; }
    BOOL setItemsHidden(const CStringArray& /*ids*/, bool /*add*/) override { return 0; }
    bool isItemHidden(const VxString& /*id*/) const override { return false; }
    void runWhenQuiescent(std::unique_ptr<QuiescentAction> action) override {
        kept = std::move(action);
    }

    std::unique_ptr<QuiescentAction> kept;
};

class RoofTest : public testing::Test {
protected:
    void TearDown() override {
        setDashboardRoof(nullptr);
        setControlRoof(nullptr);
    }
    std::unique_ptr<QuiescentAction> action() {
        return std::make_unique<CountingAction>(m_runs, m_ends);
    }

    int m_runs = 0;
    int m_ends = 0;
};

TEST_F(RoofTest, WithoutItThereIsNoDashboardAndNothingRuns) {
    EXPECT_EQ(dashboardRoof(), nullptr);
    EXPECT_EQ(controlRoof(), nullptr);
    EXPECT_FALSE(isDashboardVisible());
    EXPECT_EQ(currentPanelSet(), nullptr);
    runWhenQuiescent(action());
    EXPECT_EQ(m_runs, 0);
    EXPECT_EQ(m_ends, 1) << "the action was dropped";
}

TEST_F(RoofTest, AnswersForTheDashboard) {
    // Panel sets are only pointers here.
    alignas(std::max_align_t) static char place;
    StandInDashboard dashboard;
    setDashboardRoof(&dashboard);
    EXPECT_EQ(dashboardRoof(), &dashboard);
    EXPECT_FALSE(isDashboardVisible());
    EXPECT_EQ(currentPanelSet(), nullptr);
    dashboard.visible = true;
    dashboard.panels = reinterpret_cast<CVxDaPanelSet*>(&place);
    EXPECT_TRUE(isDashboardVisible());
    EXPECT_EQ(currentPanelSet(), dashboard.panels);
}

TEST_F(RoofTest, TakesActionsOver) {
    StandInControls controls;
    setControlRoof(&controls);
    EXPECT_EQ(controlRoof(), &controls);
    runWhenQuiescent(action());
    EXPECT_EQ(m_ends, 0);
    ASSERT_NE(controls.kept, nullptr);
    controls.kept->run();
    EXPECT_EQ(m_runs, 1);
}

}  // namespace
