#include "workbench/toolkit/notes.h"

#include "workbench/base/text.h"
#include "workbench/host/workbench.h"
#include "workbench/loader/module_loader.h"

#include <optional>

namespace workbench {

void noteText(Journal& journal, std::string_view kind, const std::wstring& text,
              const std::string& owner) {
    if (!journal.isRecording())
        return;
    const std::optional<int> number =
        Workbench::current().modules().strings().resourceNumberOf(text);
    journal.add(kind, {{"text", toUtf8(text)},
                       {"string", number ? Value(*number) : Value()},
                       {"owner", owner.empty() ? Value() : Value(owner)}});
}

}  // namespace workbench
