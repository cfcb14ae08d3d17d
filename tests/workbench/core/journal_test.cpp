#include "workbench/core/journal.h"

#include <gtest/gtest.h>

#include <sstream>

namespace workbench {

namespace {

class JournalTest : public testing::Test {
protected:
    Clock clock;
    Journal journal{clock};
};

}  // namespace

TEST_F(JournalTest, RecordsBearTheTimeAndAnAscendingNumber) {
    EXPECT_EQ(journal.add("gesture", {{"text", "drag"}}), 1U);
    clock.advanceTo(150);
    EXPECT_EQ(journal.add("var", {}), 2U);
    ASSERT_EQ(journal.records().size(), 2U);
    EXPECT_EQ(journal.records()[0].time, 0);
    EXPECT_EQ(journal.records()[1].time, 150);
    EXPECT_EQ(journal.records()[0].field("text"), Value("drag"));
    EXPECT_TRUE(journal.records()[0].field("other").isNil());
}

TEST_F(JournalTest, TakingAKindLeavesTheOthersInOrder) {
    journal.add("call", {{"name", "a"}});
    journal.add("var", {{"name", "b"}});
    journal.add("call", {{"name", "c"}});
    journal.add("item", {{"name", "d"}});
    const std::vector<JournalRecord> calls = journal.take("call");
    ASSERT_EQ(calls.size(), 2U);
    EXPECT_EQ(calls[0].field("name"), Value("a"));
    EXPECT_EQ(calls[1].field("name"), Value("c"));
    const std::vector<JournalRecord> rest = journal.take();
    ASSERT_EQ(rest.size(), 2U);
    EXPECT_EQ(rest[0].kind, "var");
    EXPECT_EQ(rest[1].kind, "item");
    EXPECT_TRUE(journal.take().empty());
}

TEST_F(JournalTest, ARecordIsCompletedUntilItIsTaken) {
    const std::uint64_t number = journal.add("call", {{"name", "a"}});
    journal.complete(number, "result", 1);
    journal.complete(number, "result", 2);
    journal.complete(number + 1, "result", 3);
    EXPECT_EQ(journal.take()[0].field("result"), Value(2));
    journal.complete(number, "result", 4);
    EXPECT_TRUE(journal.records().empty());
}

TEST_F(JournalTest, NothingIsKeptWhileRecordingIsOff) {
    journal.setRecording(false);
    EXPECT_EQ(journal.add("call", {}), 0U);
    journal.setRecording(true);
    EXPECT_TRUE(journal.records().empty());
}

TEST_F(JournalTest, TheListenerHearsEachRecordAtOnce) {
    std::string heard;
    journal.setListener([&heard](const JournalRecord& record) { heard += record.kind + ";"; });
    journal.add("call", {});
    journal.add("var", {});
    EXPECT_EQ(heard, "call;var;");
    journal.setListener(nullptr);
    journal.add("item", {});
    EXPECT_EQ(heard, "call;var;");
}

TEST_F(JournalTest, EachRecordIsWrittenOnce) {
    std::ostringstream out;
    journal.writeTo(&out);
    journal.add("var", {{"name", "A"}});
    journal.flush();
    journal.flush();
    journal.add("var", {{"name", "B"}});
    journal.take();
    journal.flush();
    EXPECT_EQ(out.str(),
              "{\"t\":0,\"kind\":\"var\",\"name\":\"A\"}\n"
              "{\"t\":0,\"kind\":\"var\",\"name\":\"B\"}\n");
}

}  // namespace workbench
