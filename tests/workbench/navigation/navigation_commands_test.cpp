#include "workbench/navigation/navigation_commands.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/navigation/navigation_tool.h"

#include <ostream>

namespace workbench {

struct NavigationCase {
    const wchar_t* command;
    int mode;

    friend void PrintTo(const NavigationCase& shown, std::ostream* out) {
        *out << '"' << toUtf8(shown.command) << '"';
    }
};

class NavigationCommandsTest : public EditorTest,
                               public testing::WithParamInterface<NavigationCase> {};

TEST_P(NavigationCommandsTest, StartsTheToolUntilEnterOrEsc) {
    newDocument();
    NavigationTool& tool = m_bench.navigation();
    editor().type(std::wstring(L"'_") + GetParam().command + L"\n");
    EXPECT_EQ(tool.mode(), GetParam().mode);
    editor().type(L"1,2\n");
    EXPECT_TRUE(tool.isRunning());
    editor().type(L"\n");
    EXPECT_FALSE(tool.isRunning());
    editor().type(std::wstring(GetParam().command) + L"\n\33");
    EXPECT_FALSE(tool.isRunning());
    EXPECT_EQ(read(L"CMDACTIVE"), Value(0));
}

INSTANTIATE_TEST_SUITE_P(
    Modes, NavigationCommandsTest,
    testing::Values(NavigationCase{L"3dpan", 2}, NavigationCase{L"3dzoom", 3},
                    NavigationCase{L"3dorbit", 4}, NavigationCase{L"constrainedorbit", 4},
                    NavigationCase{L"freeorbit", 22}, NavigationCase{L"continuousorbit", 5},
                    NavigationCase{L"3dswivel", 9}, NavigationCase{L"3ddistance", 10},
                    NavigationCase{L"3dwalk", 17}, NavigationCase{L"3dfly", 18}));

TEST_F(EditorTest, FinishingTheCommandStopsTheTool) {
    newDocument();
    editor().type(L"3dorbit\n");
    EXPECT_TRUE(editor().finishCommand(CommandState::Ended));
    EXPECT_FALSE(m_bench.navigation().isRunning());
}

TEST_F(EditorTest, WhileTheToolRunsAnotherCommandOfItFails) {
    newDocument();
    editor().type(L"3dorbit\n");
    events();
    editor().type(L"'3dwalk\n");
    EXPECT_EQ(events(), (Lines{"started 3DWALK", "failed 3DWALK"}));
    EXPECT_EQ(m_bench.navigation().mode(), NavigationTool::kConstrainedOrbit);
}

TEST_F(EditorTest, ClosingTheDocumentStopsTheTool) {
    Document& document = newDocument();
    editor().type(L"3dorbit\n");
    editor().documents().close(document);
    EXPECT_FALSE(m_bench.navigation().isRunning());
}

}  // namespace workbench
