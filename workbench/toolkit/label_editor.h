#pragma once

#include <hostapi/window/wnd.h>

#include <functional>
#include <utility>

namespace workbench {

/// The edit field in which a user changes a label in its place. Enter and the loss of the keyboard end
/// the editing with the text, Escape without.
class LabelEditor final : public CWnd {
public:
    enum class End { Take, Drop };
    using Ended = std::function<void(End)>;

    /// `ended` may come more than once, and may end this object's window.
    explicit LabelEditor(Ended ended) : m_ended(std::move(ended)) {}

    // CWnd:
    BOOL PreTranslateMessage(MSG* msg) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    const Ended m_ended;
};

}  // namespace workbench
