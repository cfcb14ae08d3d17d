#include "workbench/toolbar/toolbar_controls.h"

#include "workbench/editor/editor.h"
#include "workbench/toolbar/toolbar_button.h"
#include "workbench/toolkit/combo_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <memory>
#include <utility>

namespace workbench {

namespace {

/// A control's object; it ends with its window.
template <class Base>
class OwnedByWindow final : public Base {
public:
    template <class Given>
    OwnedByWindow(Given& given, std::unique_ptr<CWnd> object)
        : Base(given),
          m_object(std::move(object)) {}

private:
    std::unique_ptr<CWnd> m_object;
};

bool holds(const ComboWidget& combo, const ToolbarEntries& entries) {
    if (combo.count() != static_cast<int>(entries.size()))
        return false;
    for (int i = 0; i < combo.count(); ++i) {
        if (combo.entry(i)->text != entries[static_cast<std::size_t>(i)])
            return false;
    }
    return true;
}

void fill(Window& window, ComboWidget& combo, const ToolbarEntries& entries) {
    combo.clear(window);
    for (const std::wstring& text : entries) {
        auto entry = std::make_unique<QRUI_COMBO_CTRL_ITEM>();
        entry->text = text;
        combo.add(window, std::move(entry));
    }
}

}  // namespace

ToolbarControls::ToolbarControls(Toolkit& toolkit, Editor& editor, MenuHost& menu)
    : m_toolkit(toolkit),
      m_scope{editor, menu},
      m_watch(editor, [this] { refresh(); }) {
    editor.layerDisplay().setListener([this] { refresh(); });
}

ToolbarControls::~ToolbarControls() {
    m_scope.editor.layerDisplay().setListener(nullptr);
}

CWnd* ToolbarControls::make(CWnd* parent, const CRect& rect, UINT id) {
    WindowSystem& windows = m_toolkit.windows();
    const ToolbarControl* const control = findToolbarControl(id);
    if (control == nullptr || parent == nullptr)
        return nullptr;
    auto object = std::make_unique<CWnd>();
    CWnd* const window = object.get();
    const bool isList = control->entries != nullptr;
    WindowCreation creation;
    creation.className = isList ? "CQrUiComboCtrl" : "ToolbarButton";
    creation.style = WS_CHILD | WS_VISIBLE;
    creation.rect = {rect.left, rect.top, rect.right, rect.top + ComboWidget::kHeight};
    creation.parent = parent->m_hWnd;
    creation.id = static_cast<int>(id);
    if (isList)
        creation.widget =
            std::make_unique<OwnedByWindow<ComboWidget>>(m_toolkit, std::move(object));
    else
        creation.widget =
            std::make_unique<OwnedByWindow<ToolbarButton>>(windows, std::move(object));
    if (!windows.create(*window, std::move(creation)))
        return nullptr;
    if (isList) {
        m_lists.push_back(window->m_hWnd);
        refresh(*windows.find(window->m_hWnd), *comboOf(window->m_hWnd));
    }
    return window;
}

bool ToolbarControls::handle(HWND handle, UINT id, UINT notification) {
    const ToolbarControl* const control = findToolbarControl(id);
    if (m_toolkit.windows().find(handle) == nullptr || control == nullptr)
        return false;
    const ComboWidget* const combo = comboOf(handle);
    if (combo == nullptr) {
        control->apply(m_scope, {});
        return true;
    }
    const QRUI_COMBO_CTRL_ITEM* const chosen = combo->entry(combo->selected());
    if (notification == CBN_SELENDOK && control->apply != nullptr && chosen != nullptr)
        control->apply(m_scope, std::wstring(chosen->text));
    // A choice that the drawing refused is not kept on show, and an open list was left alone.
    refresh();
    return true;
}

void ToolbarControls::refresh() {
    if (m_lists.empty())
        return;
    WindowSystem& windows = m_toolkit.windows();
    std::erase_if(m_lists, [&windows](HWND list) { return windows.find(list) == nullptr; });
    for (const HWND list : m_lists) {
        ComboWidget& combo = *comboOf(list);
        if (!combo.isOpen())
            refresh(*windows.find(list), combo);
    }
}

/// Nothing is told to the parent, so that nobody can end a list meanwhile.
void ToolbarControls::refresh(Window& window, ComboWidget& combo) {
    const ToolbarControl& control = *findToolbarControl(static_cast<unsigned>(window.id));
    const ToolbarEntries entries = control.entries(m_scope);
    if (!holds(combo, entries))
        fill(window, combo, entries);
    const std::wstring current =
        control.current == nullptr ? std::wstring() : control.current(m_scope);
    const int index = current.empty() ? -1 : indexOfEntry(entries, current);
    if (index != combo.selected())
        combo.select(window, index);
}

ComboWidget* ToolbarControls::comboOf(HWND control) const {
    Window* const window = m_toolkit.windows().find(control);
    return window == nullptr ? nullptr : dynamic_cast<ComboWidget*>(window->widget.get());
}

}  // namespace workbench
