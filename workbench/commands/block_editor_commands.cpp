#include "workbench/commands/block_editor_commands.h"

#include "workbench/commands/host_commands.h"
#include "workbench/editor/editor.h"

namespace workbench {

namespace {

constexpr const wchar_t* kBlockEditor = L"BLOCKEDITOR";

/// Asks which block to edit and opens the block editor on it.
class EditBlockCommand final : public Command {
public:
    CommandState start(const CommandScope& scope) override {
        const bool isOpen = scope.editor.read(kBlockEditor) == Value(1);
        return isOpen ? CommandState::Failed : CommandState::Waiting;
    }

    CommandState feed(const CommandScope& scope, std::wstring_view answer) override {
        if (answer.empty())
            return CommandState::Cancelled;
        scope.editor.set(kBlockEditor, 1);
        return CommandState::Ended;
    }

    std::wstring prompt() const override { return L"Block to edit:"; }
    bool takesBlanks() const override { return true; }
};

class CloseBlockCommand final : public Command {
public:
    CommandState start(const CommandScope& scope) override {
        if (scope.editor.read(kBlockEditor) != Value(1))
            return CommandState::Failed;
        scope.editor.set(kBlockEditor, 0);
        return CommandState::Ended;
    }
};

}  // namespace

void addBlockEditorCommands(CommandRegistry& registry) {
    addHostCommand<EditBlockCommand>(registry, L"BEDIT", CommandTraits::NotUndoable);
    addHostCommand<CloseBlockCommand>(registry, L"BCLOSE", CommandTraits::NotUndoable);
}

}  // namespace workbench
