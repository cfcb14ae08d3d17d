#include "core/module_call.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

using Ends = std::vector<std::string>;

/// Notes its end, and then does something more.
class Ending {
public:
    Ending(Ends& ends, std::string name, std::function<void()> act = {})
        : m_ends(ends),
          m_name(std::move(name)),
          m_act(std::move(act)) {}
    Ending(const Ending&) = delete;
    Ending& operator=(const Ending&) = delete;
    ~Ending() {
        m_ends.push_back(m_name);
        if (m_act)
            m_act();
    }

private:
    Ends& m_ends;
    std::string m_name;
    std::function<void()> m_act;
};

class ModuleCallTest : public testing::Test {
protected:
    void end(const char* name, std::function<void()> act = {}) {
        freeAfterCall(std::make_unique<Ending>(m_ends, name, std::move(act)));
    }

    Ends m_ends;
};

TEST_F(ModuleCallTest, OutsideOfACallAnObjectEndsAtOnce) {
    end("object");
    EXPECT_EQ(m_ends, Ends{"object"});
}

TEST_F(ModuleCallTest, DuringACallAnObjectLivesOnUntilItsEnd) {
    {
        const ModuleCall call;
        end("first");
        end("second");
        EXPECT_EQ(m_ends, Ends{});
    }
    EXPECT_EQ(m_ends, (Ends{"first", "second"})) << "in the order in which they went";
}

TEST_F(ModuleCallTest, CallsWithinACallEndNothing) {
    {
        const ModuleCall outermost;
        {
            const ModuleCall inner;
            {
                const ModuleCall innermost;
                end("object");
            }
            EXPECT_EQ(m_ends, Ends{});
        }
        EXPECT_EQ(m_ends, Ends{});
    }
    EXPECT_EQ(m_ends, Ends{"object"});
}

TEST_F(ModuleCallTest, OneCallAfterAnotherEndsItsOwn) {
    for (const char* name : {"first", "second"}) {
        const ModuleCall call;
        end(name);
    }
    EXPECT_EQ(m_ends, (Ends{"first", "second"}));
    end("third");
    EXPECT_EQ(m_ends, (Ends{"first", "second", "third"})) << "no call is left running";
}

TEST_F(ModuleCallTest, WhatTheEndOfAnObjectEndsGoesBehindTheOthers) {
    {
        const ModuleCall call;
        end("outer", [this] { end("inner"); });
        end("last");
    }
    EXPECT_EQ(m_ends, (Ends{"outer", "last", "inner"}));
}

TEST_F(ModuleCallTest, CallFromTheEndOfAnObjectIsNotTheOutermost) {
    {
        const ModuleCall call;
        end("outer", [this] {
            const ModuleCall again;
            end("inner");
        });
        end("last");
    }
    EXPECT_EQ(m_ends, (Ends{"outer", "last", "inner"}));
}

TEST_F(ModuleCallTest, ObjectWithOtherOwnersLivesOnBehindTheCall) {
    auto shared = std::make_shared<Ending>(m_ends, "shared");
    {
        const ModuleCall call;
        keepDuringCall(shared);
    }
    EXPECT_EQ(m_ends, Ends{});
    shared.reset();
    EXPECT_EQ(m_ends, Ends{"shared"});
}

TEST_F(ModuleCallTest, NoObjectIsNoMatter) {
    const ModuleCall call;
    freeAfterCall(std::unique_ptr<Ending>());
    EXPECT_EQ(m_ends, Ends{});
}

}  // namespace
