#include "workbench/desktop/app/desktop_commands.h"

#include "workbench/desktop/app/file_actions.h"
#include "workbench/desktop/app/main_window.h"
#include "workbench/editor/command.h"
#include "workbench/editor/command_registry.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"

#include <QTimer>

namespace workbench::desktop {

namespace {

constexpr const wchar_t* kGroup = L"DESKTOP";

using Action = void (*)(MainWindow& window);

struct CommandRow {
    const wchar_t* name;
    Action action;
};
constexpr CommandRow kCommands[] = {
    {L"NEW", [](MainWindow& window) { window.fileActions().create(); }},
    {L"OPEN", [](MainWindow& window) { window.fileActions().open(); }},
    {L"QSAVE", [](MainWindow& window) { window.fileActions().save(); }},
    {L"SAVEAS", [](MainWindow& window) { window.fileActions().saveAs(); }},
    {L"CLOSE", [](MainWindow& window) { window.fileActions().closeActive(); }},
    {L"QUIT", [](MainWindow& window) { window.close(); }},
};

class LaterCommand final : public Command {
public:
    LaterCommand(MainWindow& window, Action action) : m_window(window), m_action(action) {}

    CommandState start(const CommandScope& /*scope*/) override {
        QTimer::singleShot(0, &m_window,
                           [&window = m_window, action = m_action] { action(window); });
        return CommandState::Ended;
    }

private:
    MainWindow& m_window;
    Action m_action;
};

}  // namespace

DesktopCommands::DesktopCommands(MainWindow& window)
    : m_registry(window.workbench().editor().commands()) {
    for (const CommandRow& row : kCommands) {
        CommandDefinition definition;
        definition.group = kGroup;
        definition.globalName = definition.localName = row.name;
        definition.undoable = false;
        definition.make = [&window, action = row.action] {
            return std::make_unique<LaterCommand>(window, action);
        };
        m_registry.add(std::move(definition));
    }
}

DesktopCommands::~DesktopCommands() {
    m_registry.removeGroup(kGroup);
}

}  // namespace workbench::desktop
