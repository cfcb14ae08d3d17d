#include "workbench/commands/space_commands.h"

#include "workbench/base/text.h"
#include "workbench/commands/answers.h"
#include "workbench/commands/complaints.h"
#include "workbench/commands/host_commands.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/current.h"
#include "workbench/drawing/records/layout.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/editor/document.h"
#include "workbench/editor/editor.h"

namespace workbench {

namespace {

using drawing::Current;
using drawing::Database;
using drawing::ObjectId;
using drawing::RecordKind;
using drawing::Viewport;

constexpr const wchar_t* kNoLayout = L"No layout is on show: that needs paper space.";

CommandState write(const CommandScope& scope, const wchar_t* variable, int value) {
    return scope.editor.variables().write(variable, value, VariableWriter::Program)
               ? CommandState::Ended
               : CommandState::Failed;
}

class ModelCommand final : public Command {
public:
    CommandState start(const CommandScope& scope) override { return write(scope, L"TILEMODE", 1); }
};

/// Works on the sheet of the layout on show.
class PaperSpaceCommand final : public Command {
public:
    CommandState start(const CommandScope& scope) override {
        if (drawing::activeLayout(scope.document.data()).isNull())
            return failBecause(scope, kNoLayout);
        return write(scope, L"CVPORT", Viewport::kPaperNumber);
    }
};

/// Works in the model through the first viewport of the layout on show that is switched on.
class ModelSpaceCommand final : public Command {
public:
    CommandState start(const CommandScope& scope) override {
        const Database& database = scope.document.data();
        const ObjectId layout = drawing::activeLayout(database);
        if (layout.isNull())
            return failBecause(scope, kNoLayout);
        for (const ObjectId id : drawing::viewportsOf(database, layout)) {
            const auto* viewport = database.look<Viewport>(id);
            if (!viewport->isPaper() && viewport->on)
                return write(scope, L"CVPORT", viewport->number);
        }
        return failBecause(scope, L"No viewport of this layout is switched on.");
    }
};

/// Asks for the option and the layout; only "Set" is known.
class LayoutCommand final : public Command {
public:
    CommandState start(const CommandScope& /*scope*/) override { return CommandState::Waiting; }

    CommandState feed(const CommandScope& scope, std::wstring_view answer) override {
        if (answer.empty())
            return CommandState::Ended;
        if (m_setting)
            return show(scope, answer);
        m_setting = choosesOption(answer, L"Set");
        return m_setting ? CommandState::Waiting
                         : askAgain(scope, inQuotes(answer) + L" is no option.");
    }

    std::wstring prompt() const override {
        return m_setting ? L"Layout to make current:" : L"Enter layout option [Set]:";
    }

    bool takesBlanks() const override { return m_setting; }

private:
    static CommandState show(const CommandScope& scope, std::wstring_view name) {
        if (equalNoCase(name, L"Model"))
            return write(scope, L"TILEMODE", 1);
        Database& database = scope.document.data();
        const ObjectId layout = database.find(RecordKind::Layout, toUtf8(name));
        if (layout.isNull())
            return askAgain(scope, L"There is no layout " + inQuotes(name) + L".");
        drawing::Writing<Current>(database, database.first(RecordKind::Current))->layout = layout;
        return write(scope, L"TILEMODE", 0);
    }

    bool m_setting = false;  // "Set" was chosen, and the layout is asked for
};

}  // namespace

void addSpaceCommands(CommandRegistry& registry) {
    addHostCommand<ModelCommand>(registry, L"MODEL", CommandTraits::Plain);
    addHostCommand<ModelSpaceCommand>(registry, L"MSPACE", CommandTraits::Plain);
    addHostCommand<PaperSpaceCommand>(registry, L"PSPACE", CommandTraits::Plain);
    addHostCommand<LayoutCommand>(registry, L"-LAYOUT", CommandTraits::Plain);
}

}  // namespace workbench
