#pragma once

#include "workbench/windows/window.h"

#include <functional>

namespace workbench {

class Toolkit;

/// A window of the host's own from which typing goes to the command line: the drawing view, and the
/// command line itself, which also gets the keys that a control did not want. A click gives it the
/// focus, if that may be taken from where it is.
class TypingWidget final : public Widget {
public:
    /// Told each typed character: Enter as a line end, Esc as the character of that number.
    using Typed = std::function<void(wchar_t)>;

    /// Both must outlive it; while `typed` is empty what is typed is lost.
    TypingWidget(Toolkit& toolkit, const Typed& typed) : m_toolkit(toolkit), m_typed(typed) {}

    // Widget:
    bool handle(Window& window, UINT message, WPARAM wParam, LPARAM lParam,
                LRESULT& answer) override;

private:
    void type(wchar_t character) const;

    Toolkit& m_toolkit;
    const Typed& m_typed;
};

}  // namespace workbench
