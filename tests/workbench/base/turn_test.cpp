#include "workbench/base/turn.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace workbench {

namespace {

class TurnTest : public testing::Test {
protected:
    void putOff(const std::string& name) {
        Turn::putOff([this, name] { m_done.push_back(name); });
    }
    std::vector<std::string> takeDone() { return std::exchange(m_done, {}); }

    using Done = std::vector<std::string>;

private:
    Done m_done;
};

}  // namespace

TEST_F(TurnTest, OutsideOfAllTurnsNothingIsPutOff) {
    EXPECT_FALSE(Turn::isUnderWay());
    putOff("now");
    EXPECT_EQ(takeDone(), Done{"now"});
}

TEST_F(TurnTest, WorkWaitsForTheEndOfTheOutermostTurn) {
    {
        const Turn outer;
        {
            const Turn inner;
            putOff("first");
        }
        putOff("second");
        EXPECT_EQ(takeDone(), Done{});
        EXPECT_TRUE(Turn::isUnderWay());
    }
    EXPECT_EQ(takeDone(), (Done{"first", "second"}));
    EXPECT_FALSE(Turn::isUnderWay());
}

TEST_F(TurnTest, WorkThatStartsATurnAndPutsMoreOffIsFollowedByThat) {
    {
        const Turn turn;
        Turn::putOff([this] {
            const Turn nested;
            putOff("put off by the work");
        });
        putOff("put off before");
    }
    EXPECT_EQ(takeDone(), (Done{"put off before", "put off by the work"}));
}

TEST_F(TurnTest, AKeptObjectEndsWithTheTurn) {
    auto object = std::make_shared<int>(7);
    const std::weak_ptr<int> watched = object;
    {
        const Turn turn;
        Turn::keep(std::move(object));
        EXPECT_FALSE(watched.expired());
    }
    EXPECT_TRUE(watched.expired());
}

TEST_F(TurnTest, OutsideOfAllTurnsAnObjectEndsAtOnce) {
    auto object = std::make_shared<int>(7);
    const std::weak_ptr<int> watched = object;
    Turn::keep(std::move(object));
    EXPECT_TRUE(watched.expired());
}

}  // namespace workbench
