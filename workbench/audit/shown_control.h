#pragma once

#include <hostapi/types.h>

#include <optional>
#include <string>

namespace workbench {

class ComboWidget;
class SliderWidget;
class WindowSystem;
struct Window;

/// A control as its user sees it.
class ShownControl {
public:
    /// The window must live as long as this.
    ShownControl(const WindowSystem& windows, HWND control)
        : m_windows(windows),
          m_control(control) {}

    const std::string& name() const;
    /// The text of a part, blanks around it left out; nothing without such a part.
    std::optional<std::string> text(const std::string& part) const;
    /// Whether a part takes input; nothing without such a part.
    std::optional<bool> isEnabled(const std::string& part) const;
    /// Its slider and its list; null for none.
    const SliderWidget* slider() const;
    const ComboWidget* list() const;
    /// The text of the chosen entry of its list; nothing without a list, or a choice.
    std::optional<std::string> choice() const;
    /// The control ID of its list, 0 for none.
    int listId() const;
    /// Whether the user is at work in it: types into a field, holds the slider, has the list open.
    bool isInUse() const;
    /// Whether one of its fields has the keyboard.
    bool hasFieldWithFocus() const;

private:
    const Window* part(const std::string& name) const;
    template <class Type>
    const Type* firstWidget() const;

    const WindowSystem& m_windows;
    HWND m_control;
};

}  // namespace workbench
