#include "controls/input_context_reactor.h"

#include "tests/support/noting_action.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

using VxDaCmdUtil::InputContextReactor;

class InputContextReactorTest : public testing::Test {
protected:
    void queue(const std::string& name, std::function<void()> act = {}) {
        m_reactor->append(std::make_unique<support::NotingAction>(m_notes, name, std::move(act)));
    }

    std::vector<std::string> m_notes;
    std::unique_ptr<InputContextReactor> m_reactor = std::make_unique<InputContextReactor>();
};

using Notes = std::vector<std::string>;

TEST_F(InputContextReactorTest, EmptyQueueDoesNothing) {
    m_reactor->beginQuiescentState();
    EXPECT_TRUE(m_notes.empty());
}

TEST_F(InputContextReactorTest, ActionsRunInOrderAndEachEndsBeforeTheNext) {
    queue("A");
    queue("B");
    EXPECT_TRUE(m_notes.empty());
    m_reactor->beginQuiescentState();
    EXPECT_EQ(m_notes, (Notes{"run A", "end A", "run B", "end B"}));
}

TEST_F(InputContextReactorTest, ActionRunsOnceAndTheReactorIsUsedAgain) {
    queue("A");
    m_reactor->beginQuiescentState();
    m_reactor->beginQuiescentState();
    queue("B");
    m_reactor->beginQuiescentState();
    EXPECT_EQ(m_notes, (Notes{"run A", "end A", "run B", "end B"}));
}

TEST_F(InputContextReactorTest, WhatIsQueuedDuringThePassIsDroppedUnrun) {
    queue("A", [this] { queue("late"); });
    queue("B");
    m_reactor->beginQuiescentState();
    EXPECT_EQ(m_notes, (Notes{"run A", "end A", "run B", "end B", "end late"}));
    m_notes.clear();
    m_reactor->beginQuiescentState();
    EXPECT_TRUE(m_notes.empty());
}

TEST_F(InputContextReactorTest, RestInsideAnActionStartsNoSecondPass) {
    queue("A", [this] { m_reactor->beginQuiescentState(); });
    queue("B");
    m_reactor->beginQuiescentState();
    EXPECT_EQ(m_notes, (Notes{"run A", "end A", "run B", "end B"}));
}

TEST_F(InputContextReactorTest, OtherInputEventsRunNothing) {
    queue("A");
    m_reactor->beginInput();
    m_reactor->endInput();
    m_reactor->endQuiescentState();
    EXPECT_TRUE(m_notes.empty());
}

TEST_F(InputContextReactorTest, EndOfTheReactorEndsWhatWaitsUnrun) {
    queue("A");
    queue("B");
    m_reactor.reset();
    EXPECT_EQ(m_notes, (Notes{"end A", "end B"}));
}

}  // namespace
