#include "workbench/audit/shown_control.h"

#include "workbench/base/text.h"
#include "workbench/toolkit/combo_widget.h"
#include "workbench/toolkit/slider_widget.h"
#include "workbench/windows/window_parts.h"
#include "workbench/windows/window_system.h"

namespace workbench {

namespace {

std::string withoutBlanks(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

const std::string& ShownControl::name() const {
    return m_windows.find(m_control)->name;
}

const Window* ShownControl::part(const std::string& name) const {
    return m_windows.find(findPart(m_windows, m_control, name));
}

std::optional<std::string> ShownControl::text(const std::string& part) const {
    const Window* const window = this->part(part);
    if (window == nullptr)
        return {};
    return withoutBlanks(toUtf8(window->text));
}

std::optional<bool> ShownControl::isEnabled(const std::string& part) const {
    const Window* const window = this->part(part);
    if (window == nullptr)
        return {};
    return m_windows.takesInput(window->handle);
}

template <class Type>
const Type* ShownControl::firstWidget() const {
    if (const auto* const own = dynamic_cast<const Type*>(m_windows.find(m_control)->widget.get()))
        return own;
    for (const HWND window : m_windows.descendants(m_control)) {
        if (const auto* const found =
                dynamic_cast<const Type*>(m_windows.find(window)->widget.get()))
            return found;
    }
    return nullptr;
}

std::optional<std::string> ShownControl::choice() const {
    const ComboWidget* const combo = list();
    const QRUI_COMBO_CTRL_ITEM* const chosen =
        combo == nullptr ? nullptr : combo->entry(combo->selected());
    return chosen == nullptr ? std::nullopt : std::optional(toUtf8(chosen->text));
}

const SliderWidget* ShownControl::slider() const {
    return firstWidget<SliderWidget>();
}

const ComboWidget* ShownControl::list() const {
    return firstWidget<ComboWidget>();
}

int ShownControl::listId() const {
    const Window* const window = part("combo");
    return window == nullptr ? 0 : window->id;
}

bool ShownControl::hasFieldWithFocus() const {
    const Window* const focus = m_windows.find(m_windows.focus());
    return focus != nullptr && m_windows.isWithin(focus->handle, m_control) &&
           focus->widget != nullptr && focus->widget->reportsFocus();
}

bool ShownControl::isInUse() const {
    const Window* const focus = m_windows.find(m_windows.focus());
    const bool isTyping = hasFieldWithFocus() && focus->widget->holdsTyping(*focus);
    const SliderWidget* const held = slider();
    const ComboWidget* const open = list();
    return isTyping || (held != nullptr && held->isDragging()) ||
           (open != nullptr && open->isOpen());
}

}  // namespace workbench
