#include "workbench/toolkit/message_boxes.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace workbench {

namespace {

struct NamedAnswer {
    const char* name;
    int value;
};
constexpr NamedAnswer kAnswers[] = {{"ok", MessageBoxes::kOk},
                                    {"cancel", MessageBoxes::kCancel},
                                    {"yes", MessageBoxes::kYes},
                                    {"no", MessageBoxes::kNo}};

}  // namespace

int MessageBoxes::show(const std::wstring& text, UINT type, const std::string& owner) {
    m_notes.note("box", text, owner);
    if (const std::optional<int> queued = queuedAnswer(); queued)
        return *queued;
    return m_presenter ? m_presenter(text, type) : kOk;
}

std::optional<int> MessageBoxes::queuedAnswer() {
    const std::optional<Value> queued = m_answers.take("box");
    if (!queued)
        return {};
    const std::string& name = queued->asString();
    const auto* const found =
        std::find_if(std::begin(kAnswers), std::end(kAnswers),
                     [&name](const NamedAnswer& answer) { return name == answer.name; });
    if (found == std::end(kAnswers))
        throw std::invalid_argument("a message box has no answer \"" + name + "\"");
    return found->value;
}

}  // namespace workbench
