#include "workbench/commands/erase_command.h"

#include "workbench/commands/answers.h"
#include "workbench/commands/complaints.h"
#include "workbench/commands/host_commands.h"
#include "workbench/drawing/records/entity.h"
#include "workbench/editor/document.h"
#include "workbench/editor/editor.h"

#include <algorithm>
#include <vector>

namespace workbench {

namespace {

using drawing::Database;
using drawing::Entity;
using drawing::ObjectId;
using drawing::RecordKind;

/// Erases what was selected before. Otherwise it asks for objects, "Last" or "All", until Enter, and
/// erases them then.
class EraseCommand final : public Command {
public:
    CommandState start(const CommandScope& scope) override {
        m_chosen = scope.editor.selection().takeBefore(scope.document);
        return m_chosen.empty() ? CommandState::Waiting : erase(scope.document.data());
    }

    CommandState feed(const CommandScope& scope, std::wstring_view answer) override {
        Database& database = scope.document.data();
        if (answer.empty())
            return erase(database);
        const std::vector<ObjectId> entities = database.ids(RecordKind::Entity);
        if (choosesOption(answer, L"ALL"))
            m_chosen = entities;
        else if (choosesOption(answer, L"Last") && !entities.empty())
            choose(entities.back());
        else
            return askAgain(scope, inQuotes(answer) + L" chooses no object.");
        return CommandState::Waiting;
    }

    std::wstring prompt() const override { return L"Select objects [Last/ALL]:"; }

private:
    CommandState erase(Database& database) const {
        for (const ObjectId id : m_chosen)
            drawing::Writing<Entity>(database, id).erase();
        return CommandState::Ended;
    }

    void choose(ObjectId id) {
        if (std::find(m_chosen.begin(), m_chosen.end(), id) == m_chosen.end())
            m_chosen.push_back(id);
    }

    std::vector<ObjectId> m_chosen;
};

}  // namespace

void addEraseCommands(CommandRegistry& registry) {
    addHostCommand<EraseCommand>(registry, L"ERASE", CommandTraits::UsesPickSet);
}

}  // namespace workbench
