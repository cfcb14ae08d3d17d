#include "workbench/commands/host_commands.h"

#include "tests/workbench/editor/editor_fixture.h"
#include "workbench/menu/menu_reader.h"

#include <set>

namespace workbench {

TEST(HostCommandsTest, EachIsAddedOnceWithTheTraitsOfItsRow) {
    CommandRegistry registry;
    addHostCommands(registry);
    std::set<std::wstring> names;
    for (const auto& command : registry.all()) {
        EXPECT_EQ(command->group, CommandRegistry::kHostGroup);
        EXPECT_TRUE(names.insert(command->globalName).second) << toUtf8(command->globalName);
        EXPECT_NE(command->make(), nullptr);
    }
    EXPECT_FALSE(registry.find(L"U", CommandNames::Any)->undoable);
    EXPECT_TRUE(registry.find(L"LINE", CommandNames::Any)->undoable);
    EXPECT_TRUE(registry.find(L"HELP", CommandNames::Any)->transparent);
    EXPECT_FALSE(registry.find(L"LINE", CommandNames::Any)->transparent);
}

TEST_F(EditorTest, EachMacroOfTheExampleMenuIsKnown) {
    newDocument();
    const MenuData menu = readMenuFile(std::string(PROJECT_SOURCE_ROOT) + "/examples/panels.json");
    int macros = 0;
    for (const MenuToolPanel& panel : menu.toolPanels) {
        for (const MenuItem& item : panel.items) {
            if (item.macro.empty())
                continue;
            ++macros;
            m_bench.journal().take();
            processor().sendMacro(L"^C^C" + toWide(item.macro), 1);
            editor().pump();
            for (const std::string& event : fields("command", "event"))
                EXPECT_NE(event, "unknown") << item.macro;
        }
    }
    EXPECT_GT(macros, 40);
}

}  // namespace workbench
