#include "workbench/core/journal.h"

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

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

TEST_F(JournalTest, AListenerHearsEachRecordAtOnceUntilItEnds) {
    std::string heard;
    Journal::Listening listening =
        journal.addListener([&heard](const JournalRecord& record) { heard += record.kind + ";"; });
    journal.add("call", {});
    journal.add("var", {});
    EXPECT_EQ(heard, "call;var;");
    listening = {};
    journal.add("item", {});
    EXPECT_EQ(heard, "call;var;");
}

TEST_F(JournalTest, ListenersHearARecordInTheirOrder) {
    std::string heard;
    const auto first = journal.addListener([&heard](const JournalRecord&) { heard += "1"; });
    const auto second = journal.addListener([&heard](const JournalRecord&) { heard += "2"; });
    journal.add("call", {});
    EXPECT_EQ(heard, "12");
}

TEST_F(JournalTest, NoListenerHearsWhileRecordingIsOff) {
    int heard = 0;
    const auto listening = journal.addListener([&heard](const JournalRecord&) { ++heard; });
    journal.setRecording(false);
    journal.add("call", {});
    EXPECT_EQ(heard, 0);
}

TEST_F(JournalTest, AListenerMayEndItselfWhileItIsTold) {
    std::string heard;
    Journal::Listening listening;
    listening = journal.addListener(
        [&listening, &heard, word = std::string("once;")](const JournalRecord&) {
            listening = {};
            heard += word;
        });
    const auto other = journal.addListener([&heard](const JournalRecord&) { heard += "other;"; });
    journal.add("call", {});
    journal.add("call", {});
    EXPECT_EQ(heard, "once;other;other;");
}

TEST_F(JournalTest, AListenerThatAnotherOneEndsHearsNoMore) {
    std::string heard;
    Journal::Listening second;
    const auto first = journal.addListener([&second](const JournalRecord&) { second = {}; });
    second = journal.addListener([&heard](const JournalRecord&) { heard += "2"; });
    journal.add("call", {});
    EXPECT_EQ(heard, "");
}

TEST_F(JournalTest, AListenerThatIsAddedWhileOneIsToldHearsTheNextRecord) {
    std::string heard;
    std::vector<Journal::Listening> later;
    const auto first = journal.addListener([&](const JournalRecord&) {
        later.push_back(journal.addListener(
            [&heard](const JournalRecord& record) { heard += record.kind + ";"; }));
    });
    journal.add("call", {});
    EXPECT_EQ(heard, "");
    journal.add("var", {});
    EXPECT_EQ(heard, "var;");
}

TEST_F(JournalTest, AListenerMayAddAndTakeRecords) {
    std::string heard;
    const auto first = journal.addListener([this](const JournalRecord& record) {
        if (record.kind != "call")
            return;
        journal.add("note", {});
        journal.take();
    });
    const auto second =
        journal.addListener([&heard](const JournalRecord& record) { heard += record.kind + ";"; });
    EXPECT_EQ(journal.add("call", {}), 1U);
    EXPECT_EQ(heard, "note;call;");
    EXPECT_TRUE(journal.records().empty());
}

TEST_F(JournalTest, AListenerMayOutliveTheJournal) {
    Journal::Listening listening;
    {
        Journal shortLived(clock);
        listening = shortLived.addListener([](const JournalRecord&) {});
        shortLived.add("call", {});
    }
    listening = {};
    journal.add("call", {});
    EXPECT_EQ(journal.records().size(), 1U);
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
