#include "workbench/core/journal.h"

#include <gtest/gtest.h>

namespace workbench {

TEST(JournalJsonTest, FieldsKeepTheirOrderAndTypes) {
    const JournalRecord record{1,
                               150,
                               "call",
                               {{"name", "vxedSetVar"},
                                {"args", Value::List{1, 2.5, true, Value()}},
                                {"result", Value::Table{{"b", 1}, {"a", "x"}}}}};
    EXPECT_EQ(toJsonLine(record),
              R"({"t":150,"kind":"call","name":"vxedSetVar","args":[1,2.5,true,null],)"
              R"("result":{"b":1,"a":"x"}})");
}

TEST(JournalJsonTest, ALineStaysOneLineAndUtf8) {
    const JournalRecord record{1, 0, "box", {{"text", "one\ntwo \xC3\xA9 \xFF"}}};
    EXPECT_EQ(toJsonLine(record),
              "{\"t\":0,\"kind\":\"box\",\"text\":\"one\\ntwo \xC3\xA9 \xEF\xBF\xBD\"}");
}

}  // namespace workbench
