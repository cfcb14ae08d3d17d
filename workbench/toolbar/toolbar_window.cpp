#include "workbench/toolbar/toolbar_window.h"

#include "workbench/toolkit/combo_widget.h"
#include "workbench/toolkit/input_messages.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <memory>
#include <utility>

namespace workbench {

namespace {

constexpr int kButtonSize = 22;  // pixels
constexpr UINT kButtonClicked = 0;

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

/// A button that tells its parent of a click.
class ButtonWidget : public ControlWidget {
public:
    explicit ButtonWidget(WindowSystem& windows) : m_windows(windows) {}

    bool handle(Window& window, UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/,
                LRESULT& /*answer*/) override {
        if (message != kLeftButtonDown)
            return false;
        m_windows.send(window.parent, WM_COMMAND,
                       MAKELONG(static_cast<UINT>(window.id), kButtonClicked),
                       reinterpret_cast<LPARAM>(window.handle));
        return true;
    }
    int naturalHeight(const Window& /*window*/, int /*width*/) const override {
        return kButtonSize;
    }

private:
    WindowSystem& m_windows;
};

void fill(Window& window, ComboWidget& combo, const ToolbarControl& control,
          const ToolbarScope& scope) {
    const std::wstring kept =
        combo.entry(combo.selected()) == nullptr ? L"" : combo.entry(combo.selected())->text;
    combo.clear(window);
    const std::vector<std::wstring> entries = control.entries(scope);
    int selected = -1;
    for (const std::wstring& text : entries) {
        auto entry = std::make_unique<QRUI_COMBO_CTRL_ITEM>();
        entry->text = text;
        const int index = combo.add(window, std::move(entry));
        if (text == kept)
            selected = index;
    }
    combo.select(window, control.current == nullptr ? selected : control.current(scope, entries));
}

}  // namespace

CWnd* makeToolbarWindow(Toolkit& toolkit, const ToolbarScope& scope, CWnd* parent,
                        const CRect& rect, UINT id) {
    WindowSystem& windows = toolkit.windows();
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
        creation.widget = std::make_unique<OwnedByWindow<ComboWidget>>(toolkit, std::move(object));
    else
        creation.widget = std::make_unique<OwnedByWindow<ButtonWidget>>(windows, std::move(object));
    if (!windows.create(*window, std::move(creation)))
        return nullptr;
    if (isList)
        fill(*windows.find(window->m_hWnd), *windows.widgetOf<ComboWidget>(window), *control,
             scope);
    return window;
}

bool handleToolbarNotice(WindowSystem& windows, const ToolbarScope& scope, HWND handle, UINT id,
                         UINT notification) {
    Window* const window = windows.find(handle);
    const ToolbarControl* const control = findToolbarControl(id);
    if (window == nullptr || control == nullptr)
        return false;
    auto* const combo = dynamic_cast<ComboWidget*>(window->widget.get());
    if (combo == nullptr) {
        control->apply(scope, {});
        return true;
    }
    if (notification == CBN_DROPDOWN)
        fill(*window, *combo, *control, scope);
    const QRUI_COMBO_CTRL_ITEM* const chosen = combo->entry(combo->selected());
    if (notification == CBN_SELENDOK && control->apply != nullptr && chosen != nullptr)
        control->apply(scope, std::wstring(chosen->text));
    return true;
}

}  // namespace workbench
