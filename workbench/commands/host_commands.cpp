#include "workbench/commands/host_commands.h"

#include "workbench/commands/block_editor_commands.h"
#include "workbench/commands/clean_screen_commands.h"
#include "workbench/commands/dialog_commands.h"
#include "workbench/commands/draw_commands.h"
#include "workbench/commands/erase_command.h"
#include "workbench/commands/layer_command.h"
#include "workbench/commands/layer_state_command.h"
#include "workbench/commands/space_commands.h"
#include "workbench/commands/text_style_commands.h"
#include "workbench/commands/undo_commands.h"
#include "workbench/commands/variable_commands.h"
#include "workbench/commands/view_commands.h"

namespace workbench {

void addHostCommands(CommandRegistry& registry) {
    addVariableCommands(registry);
    addUndoCommands(registry);
    addLayerCommands(registry);
    addSpaceCommands(registry);
    addBlockEditorCommands(registry);
    addCleanScreenCommands(registry);
    addDrawCommands(registry);
    addEraseCommands(registry);
    addDialogCommands(registry);
    addTextStyleCommands(registry);
    addLayerStateCommand(registry);
    addViewCommands(registry);
}

}  // namespace workbench
