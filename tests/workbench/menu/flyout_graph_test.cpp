#include "workbench/menu/flyout_graph.h"

#include <gtest/gtest.h>

namespace workbench {

using Path = std::vector<std::size_t>;

TEST(FlyoutGraphTest, NoPanelsHaveNoCycle) {
    EXPECT_EQ(findFlyoutCycle({}), Path{});
}

TEST(FlyoutGraphTest, TwoWaysToOneFlyoutAreNoCycle) {
    EXPECT_EQ(findFlyoutCycle({{1, 2}, {3}, {3}, {}}), Path{});
}

TEST(FlyoutGraphTest, AFlyoutThatOpensItselfIsACycle) {
    EXPECT_EQ(findFlyoutCycle({{}, {1}}), (Path{1, 1}));
}

TEST(FlyoutGraphTest, TheWayIntoACycleIsNotPartOfIt) {
    EXPECT_EQ(findFlyoutCycle({{1}, {2}, {3}, {1}}), (Path{1, 2, 3, 1}));
}

TEST(FlyoutGraphTest, ACycleBehindAFinishedFlyoutIsFound) {
    EXPECT_EQ(findFlyoutCycle({{1}, {}, {0, 3}, {1, 2}}), (Path{2, 3, 2}));
}

TEST(FlyoutGraphTest, AChainDeeperThanTheCallStackIsFollowed) {
    const std::size_t length = 300000;
    FlyoutGraph graph(length);
    for (std::size_t panel = 0; panel + 1 < length; ++panel)
        graph[panel] = {panel + 1};
    EXPECT_EQ(findFlyoutCycle(graph), Path{});
    graph.back() = {0};
    EXPECT_EQ(findFlyoutCycle(graph).size(), length + 1);
}

}  // namespace workbench
