#include "workbench/editor/command.h"

namespace workbench {

CommandState Command::feed(const CommandScope& /*scope*/, std::wstring_view /*answer*/) {
    return CommandState::Ended;
}

}  // namespace workbench
