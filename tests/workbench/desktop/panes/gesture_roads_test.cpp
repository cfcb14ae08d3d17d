#include "workbench/desktop/panes/gesture_roads.h"

#include <gtest/gtest.h>

namespace workbench::desktop {
namespace {

class GestureRoadsTest : public testing::Test {
protected:
    void happen(std::uint64_t number) {
        JournalRecord record;
        record.number = number;
        record.kind = "dialog";
        record.fields = {{"name", "Step " + std::to_string(number)}};
        m_roads.add(record);
    }
    int steps(int road) { return m_roads.topLevelItem(road)->childCount(); }

    GestureRoads m_roads;
};

TEST_F(GestureRoadsTest, WhatHappensUntilTheNextGestureIsOneRoad) {
    happen(1);
    EXPECT_EQ(m_roads.topLevelItemCount(), 0) << "before any gesture";
    m_roads.begin(QStringLiteral("Press"), 2);
    happen(2);
    happen(3);
    m_roads.begin(QStringLiteral("Key"), 4);
    happen(4);
    ASSERT_EQ(m_roads.topLevelItemCount(), 2);
    EXPECT_EQ(m_roads.topLevelItem(0)->text(0), QStringLiteral("Press"));
    EXPECT_EQ(steps(0), 2);
    EXPECT_EQ(steps(1), 1);
    EXPECT_FALSE(m_roads.topLevelItem(0)->isExpanded());
    EXPECT_TRUE(m_roads.topLevelItem(1)->isExpanded());
}

TEST_F(GestureRoadsTest, AGestureThatNothingCameOfHasNoRoad) {
    m_roads.begin(QStringLiteral("Press"), 1);
    m_roads.begin(QStringLiteral("Key"), 1);
    m_roads.begin(QStringLiteral("Later"), 3);
    happen(2);
    EXPECT_EQ(m_roads.topLevelItemCount(), 1);
    EXPECT_EQ(m_roads.topLevelItem(0)->text(0), QStringLiteral("Key"));
    m_roads.clearRoads();
    happen(3);
    EXPECT_EQ(m_roads.topLevelItemCount(), 0);
}

TEST_F(GestureRoadsTest, WhatHappensBehindTheEndOfAGestureIsOnNoRoad) {
    m_roads.begin(QStringLiteral("Press"), 1);
    m_roads.end(2);
    m_roads.end(4);
    m_roads.begin(QStringLiteral("Key"), 5);
    for (std::uint64_t number = 1; number <= 5; ++number)
        happen(number);
    m_roads.end(5);
    happen(6);
    ASSERT_EQ(m_roads.topLevelItemCount(), 2);
    EXPECT_EQ(steps(0), 2);
    EXPECT_EQ(steps(1), 1);
}

TEST_F(GestureRoadsTest, AGestureThatEndsWithoutARecordHasNoRoad) {
    m_roads.begin(QStringLiteral("Press"), 1);
    m_roads.end(0);
    happen(1);
    EXPECT_EQ(m_roads.topLevelItemCount(), 0);
}

TEST_F(GestureRoadsTest, TheOldestRoadsGo) {
    for (std::uint64_t number = 1; number <= GestureRoads::kMostGestures + 5; ++number) {
        m_roads.begin(QString::number(number), number);
        happen(number);
    }
    EXPECT_EQ(m_roads.topLevelItemCount(), GestureRoads::kMostGestures);
    EXPECT_EQ(m_roads.topLevelItem(0)->text(0), QStringLiteral("6"));
}

}  // namespace
}  // namespace workbench::desktop
