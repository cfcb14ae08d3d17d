#include "controls/input_context_reactor.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace {

using VxDaCmdUtil::InputContextReactor;

class InputContextReactorTest : public testing::Test {
protected:
    /// Notes its run and its end, and can act while it runs.
    class Noting final : public InputContextReactor::Callback {
    public:
        Noting(std::vector<std::string>& notes, std::string name, std::function<void()> act)
            : m_notes(notes),
              m_name(std::move(name)),
              m_act(std::move(act)) {}
        ~Noting() override { m_notes.push_back("end " + m_name); }
        void run() override {
            m_notes.push_back("run " + m_name);
            if (m_act)
                m_act();
        }

    private:
        std::vector<std::string>& m_notes;
        std::string m_name;
        std::function<void()> m_act;
    };

    void queue(const std::string& name, std::function<void()> act = {}) {
        m_reactor->append(std::make_unique<Noting>(m_notes, name, std::move(act)));
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
