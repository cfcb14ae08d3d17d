#include "workbench/navigation/navigation_commands.h"

#include "workbench/navigation/navigation_tool.h"

namespace workbench {

namespace {

struct NavigationRow {
    const wchar_t* command;
    int mode;
};

constexpr NavigationRow kRows[] = {
    {L"3DPAN", NavigationTool::kPan},
    {L"3DZOOM", NavigationTool::kZoom},
    {L"3DORBIT", NavigationTool::kConstrainedOrbit},
    {L"CONSTRAINEDORBIT", NavigationTool::kConstrainedOrbit},
    {L"FREEORBIT", NavigationTool::kFreeOrbit},
    {L"CONTINUOUSORBIT", NavigationTool::kContinuousOrbit},
    {L"3DSWIVEL", NavigationTool::kSwivel},
    {L"3DDISTANCE", NavigationTool::kDistance},
    {L"3DWALK", NavigationTool::kWalk},
    {L"3DFLY", NavigationTool::kFly},
};

class NavigationCommand final : public Command {
public:
    NavigationCommand(NavigationTool& tool, int mode) : m_tool(tool), m_mode(mode) {}

    CommandState start(const CommandScope& /*scope*/) override {
        return m_tool.start(m_mode) ? CommandState::Waiting : CommandState::Failed;
    }

    CommandState feed(const CommandScope& /*scope*/, std::wstring_view answer) override {
        if (!answer.empty())
            return CommandState::Waiting;
        m_tool.stop();
        return CommandState::Ended;
    }

    std::wstring prompt() const override { return L"Press Esc or Enter to exit:"; }
    void stop(const CommandScope& /*scope*/) override { m_tool.stop(); }

private:
    NavigationTool& m_tool;
    int m_mode;
};

}  // namespace

void addNavigationCommands(CommandRegistry& registry, NavigationTool& tool) {
    for (const NavigationRow& row : kRows) {
        CommandDefinition definition;
        definition.group = kNavigationGroup;
        definition.globalName = row.command;
        definition.localName = row.command;
        definition.transparent = true;
        definition.make = [&tool, mode = row.mode] {
            return std::make_unique<NavigationCommand>(tool, mode);
        };
        registry.add(std::move(definition));
    }
}

}  // namespace workbench
