#include "workbench/commands/clean_screen_commands.h"

#include "workbench/commands/host_commands.h"
#include "workbench/editor/editor.h"

namespace workbench {

namespace {

class CleanScreenCommand final : public Command {
public:
    explicit CleanScreenCommand(bool clean) : m_clean(clean) {}

    CommandState start(const CommandScope& scope) override {
        scope.editor.set(L"CleanScreenState", m_clean ? 1 : 0);
        return CommandState::Ended;
    }

private:
    bool m_clean;
};

}  // namespace

void addCleanScreenCommands(CommandRegistry& registry) {
    addHostCommand<CleanScreenCommand>(registry, L"CLEANSCREENON", CommandTraits::NotUndoable,
                                       true);
    addHostCommand<CleanScreenCommand>(registry, L"CLEANSCREENOFF", CommandTraits::NotUndoable,
                                       false);
}

}  // namespace workbench
