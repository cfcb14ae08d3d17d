#include "workbench/core/host_call.h"

#include "workbench/core/call_desk.h"

#include <gtest/gtest.h>

namespace workbench {

namespace {

class HostCallTest : public testing::Test {
protected:
    Clock clock;
    Journal journal{clock};
    Faults faults;
    CallDesk desk{journal, faults};
};

}  // namespace

TEST_F(HostCallTest, ACallIsNotedWithItsArgumentsAndResult) {
    {
        const int object = 0;
        const wchar_t* const missing = nullptr;
        HostCall call("example", {1, 2.5, true, "text", L"wide", &object, missing});
        EXPECT_EQ(call.returns(5100), 5100);
    }
    const std::vector<JournalRecord> calls = journal.take("call");
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls[0].field("name"), Value("example"));
    EXPECT_EQ(calls[0].field("args"),
              Value(Value::List{1, 2.5, true, "text", "wide", "object", Value()}));
    EXPECT_EQ(calls[0].field("result"), Value(5100));
}

TEST_F(HostCallTest, CallsAreNotedInTheOrderInWhichTheyBegin) {
    HostCall outer("outer");
    HostCall("inner").returns(1);
    outer.returns(2);
    const std::vector<JournalRecord> calls = journal.take("call");
    ASSERT_EQ(calls.size(), 2U);
    EXPECT_EQ(calls[0].field("name"), Value("outer"));
    EXPECT_EQ(calls[0].field("result"), Value(2));
    EXPECT_EQ(calls[1].field("result"), Value(1));
}

TEST_F(HostCallTest, AFaultComesWithItsStatusOrTheUsualOne) {
    faults.fail("example", 42, 1);
    const HostCall told("example");
    EXPECT_TRUE(told.failed());
    EXPECT_EQ(told.status(5001), 42);
    faults.fail("example", {}, 1);
    const HostCall usual("example");
    EXPECT_TRUE(usual.failed());
    EXPECT_EQ(usual.status(5001), 5001);
    EXPECT_FALSE(HostCall("example").failed());
}

TEST_F(HostCallTest, AFaultComesAlsoWhileNothingIsRecorded) {
    journal.setRecording(false);
    faults.fail("example", {}, 1);
    HostCall call("example");
    EXPECT_TRUE(call.failed());
    EXPECT_EQ(call.returns(7), 7);
    EXPECT_TRUE(journal.records().empty());
}

}  // namespace workbench
