#include "workbench/host/customization_command.h"

#include "workbench/commands/host_commands.h"
#include "workbench/editor/editor.h"
#include "workbench/menu/customization_dialog.h"

#include <optional>
#include <utility>
#include <vector>

namespace workbench {

namespace {

class CustomizationCommand final : public Command {
public:
    explicit CustomizationCommand(CustomizationDialog* dialog) : m_dialog(*dialog) {}

    CommandState start(const CommandScope& scope) override {
        const std::optional<PanelKey> panel = m_dialog.takeSelection();
        std::vector<JournalRecord::Field> fields{{"name", "Customize User Interface"}};
        if (panel) {
            fields.push_back({"panel", panel->panelId});
            fields.push_back({"menuGroup", panel->menuGroup});
        }
        scope.editor.journal().add("dialog", std::move(fields));
        return CommandState::Ended;
    }

private:
    CustomizationDialog& m_dialog;
};

}  // namespace

void addCustomizationCommand(CommandRegistry& registry, CustomizationDialog& dialog) {
    addHostCommand<CustomizationCommand>(registry, L"CUI", CommandTraits::NotUndoable, &dialog);
}

}  // namespace workbench
