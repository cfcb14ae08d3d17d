#include "workbench/commands/complaints.h"

#include "workbench/base/text.h"
#include "workbench/core/journal.h"
#include "workbench/editor/document.h"
#include "workbench/editor/editor.h"

namespace workbench {

namespace {

void say(const CommandScope& scope, const std::wstring& line) {
    scope.editor.journal().add(
        "command",
        {{"text", toUtf8(line)}, {"event", "said"}, {"document", toUtf8(scope.document.name())}});
}

}  // namespace

CommandState askAgain(const CommandScope& scope, const std::wstring& why) {
    say(scope, why);
    return CommandState::Waiting;
}

CommandState failBecause(const CommandScope& scope, const std::wstring& why) {
    say(scope, why);
    return CommandState::Failed;
}

std::wstring inQuotes(std::wstring_view text) {
    return L'"' + std::wstring(text) + L'"';
}

}  // namespace workbench
