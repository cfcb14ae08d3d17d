#include "workbench/core/step_text.h"

#include <gtest/gtest.h>

namespace workbench {

namespace {

JournalRecord record(const std::string& kind, std::vector<JournalRecord::Field> fields) {
    return {1, 300, kind, std::move(fields)};
}

struct Case {
    JournalRecord record;
    const char* text;
};

class EventTextTest : public testing::TestWithParam<Case> {};

}  // namespace

TEST_P(EventTextTest, TellsWhatHappened) {
    EXPECT_EQ(describeEvent(GetParam().record), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, EventTextTest,
    testing::Values(
        Case{record("call", {{"name", "vxedSetVar"},
                             {"args", Value::List{"LAYLOCKFADECTL", 40}},
                             {"result", 5100}}),
             "vxedSetVar(\"LAYLOCKFADECTL\", 40) = 5100"},
        Case{record("call", {{"name", "CWnd::SetFocus"}, {"args", Value::List{}}}),
             "CWnd::SetFocus()"},
        Case{record("message",
                    {{"control", "Fade"}, {"number", 1727}, {"wparam", 0}, {"lparam", "CVPORT"}}),
             "Fade gets 1727 (0, \"CVPORT\")"},
        Case{record("var", {{"name", "LAYLOCKFADECTL"}, {"old", 50}, {"new", 40}}),
             "LAYLOCKFADECTL: 50 -> 40"},
        Case{record("control", {{"name", "Fade"}, {"field", "edit"}, {"old", ""}, {"new", "40"}}),
             "Fade.edit: \"\" -> \"40\""},
        Case{record("item", {{"id", "ID_Light"}, {"field", "name"}, {"old", Value()}, {"new", 1}}),
             "ID_Light.name: nothing -> 1"},
        Case{record("dialog", {{"name", "sun"}, {"count", 2}}), "name \"sun\", count 2"},
        Case{record("dialog", {}), ""}));

TEST(StepTextTest, AStepHasTimeAndKindAhead) {
    EXPECT_EQ(describeStep(record("var", {{"name", "A"}, {"old", 1}, {"new", 2}})),
              "300 ms  var      A: 1 -> 2");
}

TEST(StepTextTest, ALongColumnMovesTheNextOne) {
    JournalRecord late = record("navigation", {{"mode", 3}});
    late.time = 123456789;
    EXPECT_EQ(describeStep(late), "123456789 ms navigation mode 3");
}

}  // namespace workbench
