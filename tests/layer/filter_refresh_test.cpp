#include "layer/filter_refresh.h"

#include <gtest/gtest.h>

namespace {

class CountingView final : public LayerFilterView {
public:
    CountingView() { addLayerFilterView(this); }
    ~CountingView() override { removeLayerFilterView(this); }
    void refreshFilters() override { ++refreshes; }
    int refreshes = 0;
};

TEST(FilterRefreshTest, ReachesEveryLiveView) {
    CountingView first;
    CountingView second;
    refreshFilterCombos();
    EXPECT_EQ(first.refreshes, 1);
    EXPECT_EQ(second.refreshes, 1);
}

TEST(FilterRefreshTest, LeavesAViewThatWentAlone) {
    CountingView stays;
    int before = 0;
    {
        CountingView goes;
        refreshFilterCombos();
        before = goes.refreshes;
    }
    refreshFilterCombos();
    EXPECT_EQ(before, 1);
    EXPECT_EQ(stays.refreshes, 2);
}

}  // namespace
