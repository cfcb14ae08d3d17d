#include "workbench/editor/module_command.h"

#include "workbench/core/invalid_argument.h"
#include "workbench/editor/editor.h"

namespace workbench {

namespace {

class ModuleCommand final : public Command {
public:
    explicit ModuleCommand(VxEdCommandStack::CommandFunction function) : m_function(function) {}

    CommandState start(const CommandScope& scope) override {
        try {
            m_function();
        } catch (const InvalidArgument& failure) {
            scope.editor.journal().add("box", {{"text", failure.what()}, {"string", {}}});
            return CommandState::Failed;
        }
        return CommandState::Ended;
    }

private:
    VxEdCommandStack::CommandFunction m_function;
};

}  // namespace

CommandDefinition defineModuleCommand(const wchar_t* group, const wchar_t* globalName,
                                      const wchar_t* localName, int flags,
                                      VxEdCommandStack::CommandFunction function) {
    CommandDefinition definition;
    definition.group = group;
    definition.globalName = globalName;
    definition.localName = localName;
    definition.transparent = (flags & kCommandTransparent) != 0;
    definition.usesPickSet = (flags & kCommandUsePickSet) != 0;
    definition.make = [function] { return std::make_unique<ModuleCommand>(function); };
    return definition;
}

}  // namespace workbench
