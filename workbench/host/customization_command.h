#pragma once

namespace workbench {

class CommandRegistry;
class CustomizationDialog;

/// Adds CUI, the command that opens the customization dialog, on the panel that was selected for it if
/// there is one: a record of the journal. The dialog must outlive the command.
void addCustomizationCommand(CommandRegistry& registry, CustomizationDialog& dialog);

}  // namespace workbench
