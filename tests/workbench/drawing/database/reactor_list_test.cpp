#include "workbench/drawing/database/reactor_list.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace workbench::drawing {
namespace {

struct Listener {
    std::string name;
    std::function<void()> act = [] {};
};

class ReactorListTest : public testing::Test {
protected:
    std::string walk() {
        std::string called;
        m_list.notify([&called](Listener& listener) {
            called += listener.name;
            listener.act();
        });
        return called;
    }

    ReactorList<Listener> m_list;
    Listener m_a{"a"};
    Listener m_b{"b"};
    Listener m_c{"c"};
};

TEST_F(ReactorListTest, CallsInTheOrderOfAddingAndEachOnce) {
    m_list.add(&m_b);
    m_list.add(&m_a);
    m_list.add(&m_b);
    m_list.add(nullptr);
    EXPECT_EQ(walk(), "ba");
}

TEST_F(ReactorListTest, RemovedDuringAWalkIsNotCalledAnyMore) {
    m_list.add(&m_a);
    m_list.add(&m_b);
    m_list.add(&m_c);
    m_a.act = [this] {
        m_list.remove(&m_a);
        m_list.remove(&m_b);
    };
    EXPECT_EQ(walk(), "ac");
    EXPECT_EQ(walk(), "c");
}

TEST_F(ReactorListTest, AddedDuringAWalkIsCalledFromTheNextOneOn) {
    m_list.add(&m_a);
    m_a.act = [this] { m_list.add(&m_b); };
    EXPECT_EQ(walk(), "a");
    EXPECT_EQ(walk(), "ab");
}

TEST_F(ReactorListTest, DismissTakesEachOffBeforeItsCall) {
    m_list.add(&m_a);
    m_list.add(&m_b);
    std::string called;
    m_list.dismiss([&](Listener& listener) {
        EXPECT_FALSE(m_list.contains(&listener));
        m_list.remove(&m_b);
        called += listener.name;
    });
    EXPECT_EQ(called, "a");
    EXPECT_EQ(walk(), "");
}

TEST_F(ReactorListTest, DismissedDuringAWalkIsNotCalledAnyMore) {
    m_list.add(&m_a);
    m_list.add(&m_b);
    std::string dismissed;
    m_a.act = [&] { m_list.dismiss([&](Listener& listener) { dismissed += listener.name; }); };
    EXPECT_EQ(walk(), "a");
    EXPECT_EQ(dismissed, "ab");
    EXPECT_EQ(walk(), "");
}

}  // namespace
}  // namespace workbench::drawing
