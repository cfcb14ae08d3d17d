#include "workbench/commands/layer_state_command.h"

#include "workbench/commands/host_commands.h"
#include "workbench/editor/editor.h"

namespace workbench {

namespace {

class LayerStateCommand final : public Command {
public:
    CommandState start(const CommandScope& scope) override {
        scope.editor.layerStateDialogs().manage();
        return CommandState::Ended;
    }
};

}  // namespace

void addLayerStateCommand(CommandRegistry& registry) {
    addHostCommand<LayerStateCommand>(registry, L"LAYERSTATE", CommandTraits::Plain);
}

}  // namespace workbench
