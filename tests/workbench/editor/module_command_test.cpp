#include "workbench/editor/module_command.h"

#include "tests/workbench/editor/editor_fixture.h"

namespace workbench {

namespace {

int s_runs = 0;
void countRun() {
    ++s_runs;
}

}  // namespace

TEST_F(EditorTest, AModulesFunctionIsItsCommandsWholeRun) {
    s_runs = 0;
    const CommandDefinition definition =
        defineModuleCommand(L"G", L"A", L"B", kCommandUsePickSet, countRun);
    EXPECT_FALSE(definition.transparent);
    const CommandScope scope{editor(), newDocument()};
    EXPECT_EQ(definition.make()->start(scope), CommandState::Ended);
    EXPECT_EQ(s_runs, 1);
}

TEST(ModuleCommandTest, ItsFlagSaysWhetherItUsesThePickSet) {
    EXPECT_TRUE(defineModuleCommand(L"G", L"A", L"B", kCommandUsePickSet, countRun).usesPickSet);
    EXPECT_FALSE(defineModuleCommand(L"G", L"A", L"B", kCommandTransparent, countRun).usesPickSet);
}

TEST(ModuleCommandTest, ItsFlagSaysWhetherItIsTransparent) {
    EXPECT_TRUE(
        defineModuleCommand(L"G", L"A", L"B", kCommandTransparent | kCommandUsePickSet, countRun)
            .transparent);
}

}  // namespace workbench
