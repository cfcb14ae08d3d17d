#include "workbench/commands/complaints.h"

#include "workbench/editor/editor.h"

namespace workbench {

CommandState askAgain(const CommandScope& scope, const std::wstring& why) {
    scope.editor.print(scope.document, why);
    return CommandState::Waiting;
}

CommandState failBecause(const CommandScope& scope, const std::wstring& why) {
    scope.editor.print(scope.document, why);
    return CommandState::Failed;
}

std::wstring inQuotes(std::wstring_view text) {
    return L'"' + std::wstring(text) + L'"';
}

}  // namespace workbench
