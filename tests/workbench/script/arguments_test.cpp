#include "workbench/script/arguments.h"

#include "tests/workbench/script/script_fixture.h"

namespace workbench::script {

namespace {

struct Refusal {
    const char* call;
    const char* complaint;
};

void PrintTo(const Refusal& refusal, std::ostream* out) {
    *out << refusal.call;
}

class ArgumentsTest : public ScriptTest, public testing::WithParamInterface<Refusal> {};

TEST_P(ArgumentsTest, WrongArgumentIsNamed) {
    EXPECT_EQ(complaintOf(GetParam().call), GetParam().complaint);
}

INSTANTIATE_TEST_SUITE_P(
    All, ArgumentsTest,
    testing::Values(
        Refusal{"wb.var()", "wb.var: argument 1 must be a text, not nothing"},
        Refusal{"wb.var(nil)", "wb.var: argument 1 must be a text, not nil"},
        Refusal{"wb.var(5)", "wb.var: argument 1 must be a text, not number"},
        Refusal{"wb.hide('a', {})", "wb.hide: argument 2 must be a text, not table"},
        Refusal{"wb.wait('5')", "wb.wait: argument 1 must be a whole number, not string"},
        Refusal{"wb.wait(1.5)", "wb.wait: argument 1 must be a whole number, not number"},
        Refusal{"wb.idle(true)", "wb.idle: argument 1 must be a whole number, not boolean"},
        Refusal{"wb.fail('a', 'b')", "wb.fail: argument 2 must be a whole number, not string"},
        Refusal{"wb.fail('a', 1 << 40)",
                "wb.fail: argument 2 must be a number of 32 bits, not number"},
        Refusal{"wb.notify(1 << 40)",
                "wb.notify: argument 1 must be a number of 32 bits, not number"},
        Refusal{"wb.answer('box', print)", "wb.answer: a function is no plain value"}));

class ArgumentWordsTest : public ScriptTest {};

TEST_F(ArgumentWordsTest, WholeNumberMayBeWrittenAsAReal) {
    run("wb.wait(150.0) assert(wb.journal('gesture')[1].text == 'wait 150.0')");
}

TEST_F(ArgumentWordsTest, JournalShowsArgumentsAsTheyWereGiven) {
    run("pcall(wb.answer, 'box', 'ok') pcall(wb.answer, 'dialog', {}) pcall(wb.set, 'X', nil) "
        "local records = wb.journal('gesture') "
        "assert(records[1].text == 'answer box ok') "
        "assert(records[2].text == 'answer dialog a table') "
        "assert(records[3].text == 'set X nil')");
}

}  // namespace

}  // namespace workbench::script
