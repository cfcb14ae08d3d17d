#include "workbench/commands/dialog_commands.h"

#include "workbench/commands/host_commands.h"
#include "workbench/core/journal.h"
#include "workbench/editor/editor.h"

namespace workbench {

namespace {

/// A command that shows a dialog and leaves the rest to it.
struct DialogRow {
    const wchar_t* command;
    const char* dialog;
    CommandTraits traits = CommandTraits::NotUndoable;
};

constexpr DialogRow kDialogs[] = {
    {L"3DWALKSETTINGS", "Walk and Fly Settings", CommandTraits::Transparent},
    {L"ADJUSTEXPOSURE", "Adjust Rendered Exposure"},
    {L"CAMERA", "Camera Preview"},
    {L"DISTANTLIGHT", "Lights"},
    {L"GEOLOCATION", "Geographic Location"},
    {L"HELP", "Help", CommandTraits::Transparent},
    {L"LAYER", "Layer Properties Manager"},
    {L"RENDER", "Render"},
    {L"VISUALSTYLES", "Visual Styles Manager"},
};

class DialogCommand final : public Command {
public:
    explicit DialogCommand(const char* dialog) : m_dialog(dialog) {}

    CommandState start(const CommandScope& scope) override {
        scope.editor.journal().add("dialog", {{"name", m_dialog}});
        return CommandState::Ended;
    }

private:
    const char* m_dialog;
};

}  // namespace

void addDialogCommands(CommandRegistry& registry) {
    for (const DialogRow& row : kDialogs)
        addHostCommand<DialogCommand>(registry, row.command, row.traits, row.dialog);
}

}  // namespace workbench
