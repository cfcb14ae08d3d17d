#include "workbench/commands/variable_commands.h"

#include "tests/workbench/editor/editor_fixture.h"

#include <ostream>

namespace workbench {

class VariableCommandsTest : public EditorTest {
protected:
    VariableCommandsTest() { newDocument(); }
};

TEST_F(VariableCommandsTest, EnterKeepsTheValueWithoutWritingIt) {
    EXPECT_TRUE(run(L"_lunits\n\n"));
    EXPECT_EQ(events(), (Lines{"started SETVAR", "ended SETVAR"}));
}

TEST_F(VariableCommandsTest, ARefusedAnswerIsAskedForAgain) {
    run(L"_lunits\n9\n");
    EXPECT_EQ(read(L"CMDNAMES"), Value("SETVAR"));
    editor().type(L"two\n3\n");
    EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
    EXPECT_EQ(read(L"LUNITS"), Value(3));
}

TEST_F(VariableCommandsTest, SetvarAsksForTheVariableFirst) {
    run(L"_setvar\nnonsense\nlunits\n");
    EXPECT_EQ(processor().prompt(), L"New value for LUNITS <2>:");
    editor().type(L"5\n");
    EXPECT_EQ(read(L"LUNITS"), Value(5));
    run(L"_setvar\n\n");
    EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
}

TEST_F(VariableCommandsTest, AReadOnlyVariableIsOnlyShown) {
    EXPECT_TRUE(run(L"_cmdactive\n"));
    EXPECT_EQ(events(), (Lines{"started SETVAR", "ended SETVAR"}));
}

TEST_F(VariableCommandsTest, ATextMayHaveBlanks) {
    EXPECT_TRUE(run(L"_vscurrent\n2D Wireframe\n"));
    EXPECT_EQ(read(L"VSCURRENT"), Value("2D Wireframe"));
}

struct NamedCase {
    const wchar_t* text;
    const wchar_t* variable;
    int value;
    const char* name;

    friend void PrintTo(const NamedCase& shown, std::ostream* out) {
        *out << '"' << toUtf8(shown.text) << '"';
    }
};

class NamedVariableCommandTest : public VariableCommandsTest,
                                 public testing::WithParamInterface<NamedCase> {};

TEST_P(NamedVariableCommandTest, WritesItsVariableUnderItsOwnName) {
    EXPECT_TRUE(run(GetParam().text));
    EXPECT_EQ(read(GetParam().variable), Value(GetParam().value));
    EXPECT_EQ(events().front(), std::string("started ") + GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(
    Lights, NamedVariableCommandTest,
    testing::Values(NamedCase{L"_defaultlighting\n0\n", L"DEFAULTLIGHTING", 0, "DEFAULTLIGHTING"},
                    NamedCase{L"_lightglyphdisplay\n0\n", L"LIGHTGLYPHDISPLAY", 0,
                              "LIGHTGLYPHDISPLAY"},
                    NamedCase{L"_sunstatus\n1\n", L"SUNSTATUS", 1, "SUNSTATUS"},
                    NamedCase{L"_skystatus\n2\n", L"SKYSTATUS", 2, "SKYSTATUS"}));

TEST_F(VariableCommandsTest, ANameThatIsNoVariablesDefinesNothing) {
    EXPECT_EQ(defineVariableCommand(L"NONSENSE"), nullptr);
    ASSERT_NE(defineVariableCommand(L"lunits"), nullptr);
    EXPECT_EQ(defineVariableCommand(L"lunits")->globalName, L"SETVAR");
}

}  // namespace workbench
