#include "workbench/commands/undo_commands.h"

#include "workbench/commands/answers.h"
#include "workbench/commands/complaints.h"
#include "workbench/commands/host_commands.h"
#include "workbench/editor/document.h"

#include <optional>

namespace workbench {

namespace {

using drawing::Status;

/// Nothing left to take back is no failure; a group that is still open is.
CommandState outcomeOf(Status status) {
    return status == Status::GroupIsOpen ? CommandState::Failed : CommandState::Ended;
}

class UndoOneCommand final : public Command {
public:
    CommandState start(const CommandScope& scope) override {
        return outcomeOf(scope.document.data().undoLog().undo());
    }
};

class RedoCommand final : public Command {
public:
    CommandState start(const CommandScope& scope) override {
        return outcomeOf(scope.document.data().undoLog().redo());
    }
};

/// Asks for the number of steps; Enter means one.
class UndoStepsCommand final : public Command {
public:
    CommandState start(const CommandScope& /*scope*/) override { return CommandState::Waiting; }

    CommandState feed(const CommandScope& scope, std::wstring_view answer) override {
        const std::optional<double> steps = answer.empty() ? 1.0 : parseNumber(answer);
        if (!steps || *steps < 1)
            return askAgain(scope,
                            inQuotes(answer) + L" is no number of operations: enter 1 or more.");
        Status status = Status::Ok;
        for (double done = 0; done < *steps && status == Status::Ok; ++done)
            status = scope.document.data().undoLog().undo();
        return outcomeOf(status);
    }

    std::wstring prompt() const override { return L"Number of operations to undo <1>:"; }
};

}  // namespace

void addUndoCommands(CommandRegistry& registry) {
    addHostCommand<UndoOneCommand>(registry, L"U", CommandTraits::NotUndoable);
    addHostCommand<UndoStepsCommand>(registry, L"UNDO", CommandTraits::NotUndoable);
    addHostCommand<RedoCommand>(registry, L"REDO", CommandTraits::NotUndoable);
}

}  // namespace workbench
