#pragma once

#include "workbench/core/answers.h"
#include "workbench/toolkit/text_notes.h"

#include <hostapi/types.h>

#include <functional>
#include <optional>
#include <string>

namespace workbench {

/// Message boxes. The answer comes from the queue of the kind "box" ("ok", "cancel", "yes", "no"),
/// or from whoever shows the boxes, or is "ok".
class MessageBoxes {
public:
    static constexpr int kOk = 1;
    static constexpr int kCancel = 2;
    static constexpr int kYes = 6;
    static constexpr int kNo = 7;

    MessageBoxes(Answers& answers, const TextNotes& notes) : m_answers(answers), m_notes(notes) {}

    /// Shows a box and returns its answer. `owner` is the name of the window that it belongs to.
    int show(const std::wstring& text, UINT type, const std::string& owner);

    /// Shows a box to a user and returns the answer. Null leaves boxes to the queue.
    using Presenter = std::function<int(const std::wstring& text, UINT type)>;
    void setPresenter(Presenter presenter) { m_presenter = std::move(presenter); }

private:
    std::optional<int> queuedAnswer();

    Answers& m_answers;
    const TextNotes& m_notes;
    Presenter m_presenter;
};

}  // namespace workbench
