#include "workbench/editor/scripted_command.h"

namespace workbench {

CommandState ScriptedCommand::start(const CommandScope& /*scope*/) {
    return CommandState::Waiting;
}

CommandState ScriptedCommand::feed(const CommandScope& /*scope*/, std::wstring_view answer) {
    return answer.empty() ? CommandState::Ended : CommandState::Waiting;
}

}  // namespace workbench
