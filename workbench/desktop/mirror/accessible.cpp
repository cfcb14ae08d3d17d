#include "workbench/desktop/mirror/accessible.h"

#include "workbench/desktop/look/text.h"
#include "workbench/desktop/mirror/accessible_tree.h"
#include "workbench/desktop/mirror/item_widget.h"
#include "workbench/desktop/mirror/mirror_widget.h"
#include "workbench/desktop/mirror/open_menu.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/gestures/slider_gestures.h"
#include "workbench/toolkit/button_widget.h"
#include "workbench/toolkit/combo_widget.h"
#include "workbench/toolkit/edit_widget.h"
#include "workbench/toolkit/link_widget.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/panel_widget.h"
#include "workbench/toolkit/slider_widget.h"
#include "workbench/toolkit/tool_panel_item_record.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/toolkit/tree_widget.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/tool_panel_item.h>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <algorithm>

namespace workbench::desktop {

namespace {

template <class Type>
Type* widgetOf(const MirrorWidget& mirror) {
    const Window* const window = mirror.host();
    return window == nullptr ? nullptr : dynamic_cast<Type*>(window->widget.get());
}

QAccessible::Role roleOf(const MirrorWidget& mirror) {
    if (widgetOf<SliderWidget>(mirror) != nullptr)
        return QAccessible::Slider;
    if (widgetOf<EditWidget>(mirror) != nullptr)
        return QAccessible::EditableText;
    if (widgetOf<ComboWidget>(mirror) != nullptr)
        return QAccessible::ComboBox;
    if (widgetOf<LinkWidget>(mirror) != nullptr)
        return QAccessible::Link;
    if (widgetOf<ButtonWidget>(mirror) != nullptr)
        return QAccessible::CheckBox;
    const Window* const window = mirror.host();
    if (window != nullptr && window->className == "ToolbarButton")
        return QAccessible::Button;
    return QAccessible::Grouping;
}

/// A mirrored window.
class AccessibleWindow final : public QAccessibleWidget,
                               public QAccessibleValueInterface,
                               public QAccessibleTextInterface {
public:
    explicit AccessibleWindow(MirrorWidget& mirror) : QAccessibleWidget(&mirror, roleOf(mirror)) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? value() : QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override;
    QAccessibleInterface* focusChild() const override;
    int childCount() const override {
        return QAccessibleWidget::childCount() + (openMenu() == nullptr ? 0 : 1);
    }
    QAccessibleInterface* child(int index) const override {
        return index == QAccessibleWidget::childCount()
                   ? QAccessible::queryAccessibleInterface(openMenu())
                   : QAccessibleWidget::child(index);
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return openMenu() != nullptr && child->object() == openMenu()
                   ? QAccessibleWidget::childCount()
                   : QAccessibleWidget::indexOfChild(child);
    }
    QStringList actionNames() const override {
        return role() == QAccessible::CheckBox ? QStringList{pressAction()}
                                               : QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override;
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface && slider() != nullptr)
            return static_cast<QAccessibleValueInterface*>(this);
        if (type == QAccessible::TextInterface && edit() != nullptr)
            return static_cast<QAccessibleTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    // QAccessibleValueInterface, for sliders:
    QVariant currentValue() const override { return slider()->position(); }
    QVariant minimumValue() const override { return slider()->lowest(); }
    QVariant maximumValue() const override { return slider()->highest(); }
    QVariant minimumStepSize() const override { return slider()->lineSize(); }
    void setCurrentValue(const QVariant& value) override {
        mirror().stage().pump.act([this, position = value.toInt()] {
            if (gestures::dragSlider(mirror().stage().toolkit, mirror().handle(), {position}))
                gestures::releaseSlider(mirror().stage().toolkit, mirror().handle());
        });
    }

    // QAccessibleTextInterface, for edit fields:
    QString text(int from, int to) const override { return value().mid(from, to - from); }
    int characterCount() const override { return static_cast<int>(value().size()); }
    int cursorPosition() const override;
    void setCursorPosition(int /*position*/) override {}
    int selectionCount() const override;
    void selection(int index, int* from, int* to) const override;
    void addSelection(int /*from*/, int /*to*/) override {}
    void removeSelection(int /*index*/) override {}
    void setSelection(int /*index*/, int /*from*/, int /*to*/) override {}
    void scrollToSubstring(int /*from*/, int /*to*/) override {}
    QRect characterRect(int place) const override;
    int offsetAtPoint(const QPoint& point) const override;
    QString attributes(int place, int* from, int* to) const override {
        *from = *to = place;
        return {};
    }

private:
    /// The list or the menu that is open on the window, its last child; null for none.
    QWidget* openMenu() const { return menuOpenOn(mirror()); }
    EditWidget* edit() const { return widgetOf<EditWidget>(mirror()); }
    const LineEditor& line() const { return edit()->editor(*mirror().host()); }
    MirrorWidget& mirror() const { return *static_cast<MirrorWidget*>(widget()); }
    SliderWidget* slider() const { return widgetOf<SliderWidget>(mirror()); }
    QString value() const;
};

int AccessibleWindow::cursorPosition() const {
    return static_cast<int>(line().caret());
}

int AccessibleWindow::selectionCount() const {
    return line().caret() == line().anchor() ? 0 : 1;
}

void AccessibleWindow::selection(int /*index*/, int* from, int* to) const {
    *from = static_cast<int>(std::min(line().caret(), line().anchor()));
    *to = static_cast<int>(std::max(line().caret(), line().anchor()));
}

QRect AccessibleWindow::characterRect(int place) const {
    const auto scrolled = static_cast<int>(edit()->scrolled(*mirror().host()));
    const int left = EditWidget::kTextMargin + (place - scrolled) * EditWidget::kCharacterWidth;
    return {mirror().mapToGlobal(QPoint(left, 0)),
            QSize(EditWidget::kCharacterWidth, mirror().height())};
}

int AccessibleWindow::offsetAtPoint(const QPoint& point) const {
    const auto scrolled = static_cast<int>(edit()->scrolled(*mirror().host()));
    const int along = mirror().mapFromGlobal(point).x() - EditWidget::kTextMargin;
    return std::clamp(along / EditWidget::kCharacterWidth + scrolled, 0, characterCount());
}

QString AccessibleWindow::value() const {
    const Window* const window = mirror().host();
    if (slider() != nullptr)
        return QString::number(slider()->position());
    if (const auto* combo = widgetOf<ComboWidget>(mirror())) {
        const QRUI_COMBO_CTRL_ITEM* const shown = combo->entry(combo->selected());
        return shown == nullptr ? QString() : toQt(shown->text);
    }
    return widgetOf<EditWidget>(mirror()) == nullptr ? QString() : toQt(window->text);
}

QAccessibleInterface* AccessibleWindow::focusChild() const {
    ItemWidget* const item = mirror().itemWithKeyboard();
    return item == nullptr ? nullptr : QAccessible::queryAccessibleInterface(item);
}

void AccessibleWindow::doAction(const QString& name) {
    if (role() != QAccessible::CheckBox || name != pressAction()) {
        QAccessibleWidget::doAction(name);
        return;
    }
    mirror().stage().pump.act([this] {
        Toolkit& toolkit = mirror().stage().toolkit;
        gestures::clickAt(toolkit, mirror().handle(),
                          gestures::middleOf(toolkit, mirror().handle()));
    });
}

QAccessible::State AccessibleWindow::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    const Window* const window = mirror().host();
    if (window == nullptr)
        return state;
    const WindowSystem& windows = mirror().stage().windows;
    state.disabled = !windows.takesInput(window->handle);
    state.focusable = window->widget != nullptr && window->widget->takesTab();
    // Of a row of tools the marked tool has it.
    state.focused = mirror().hasFocus() && QApplication::activePopupWidget() == nullptr &&
                    focusChild() == nullptr;
    state.editable = widgetOf<EditWidget>(mirror()) != nullptr;
    state.checkable = role() == QAccessible::CheckBox;
    state.checked =
        state.checkable && mirror().stage().windows.send(window->handle, BM_GETCHECK, 0, 0) != 0;
    if (const auto* combo = widgetOf<ComboWidget>(mirror())) {
        state.expandable = true;
        state.expanded = combo->isOpen();
    } else if (widgetOf<PanelWidget>(mirror()) != nullptr) {
        auto& panels = mirror().stage().toolkit.panels();
        state.expandable = true;
        state.expanded = !panels.of(static_cast<const CQrUiPanel*>(window->object)).collapsed;
    }
    return state;
}

QAccessible::Role roleOf(const CQrUiToolPanelItem* item) {
    switch (item == nullptr ? kItemSeparator : item->GetType()) {
    case kItemButton:
        return QAccessible::Button;
    case kItemFlyout:
        return QAccessible::ButtonMenu;
    case kItemIcon:
        return QAccessible::Graphic;
    default:
        return QAccessible::Separator;
    }
}

/// An item of a tool panel.
class AccessibleItem final : public QAccessibleWidget {
public:
    explicit AccessibleItem(ItemWidget& item) : QAccessibleWidget(&item, roleOf(item.item())) {}

    /// An item may be renamed without being drawn again.
    QString text(QAccessible::Text kind) const override {
        const CQrUiToolPanelItem* const shown = item().item();
        if (kind == QAccessible::Name && shown != nullptr) {
            const std::wstring name = shownName(item().stage().toolkit, *shown);
            return toQt(name.empty() ? knownId(*shown) : name);
        }
        return QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        const CQrUiToolPanelItem* const shown = item().item();
        const UINT bits = shown == nullptr ? kItemDisabled : shown->GetState();
        state.disabled =
            (bits & kItemDisabled) != 0 || !item().stage().windows.takesInput(item().toolPanel());
        state.checked = (bits & kItemChecked) != 0;
        state.hasPopup = role() == QAccessible::ButtonMenu;
        state.expandable = state.hasPopup;
        state.focusable = actionNames().size() > 0;
        state.focused = isWithKeyboard();
        return state;
    }
    QStringList actionNames() const override {
        if (role() == QAccessible::Button || role() == QAccessible::ButtonMenu)
            return {pressAction()};
        return {};
    }
    void doAction(const QString& name) override {
        if (name != pressAction())
            return;
        const QPoint middle = item().geometry().center();
        item().stage().pump.act([this, middle] {
            Mouse& mouse = item().stage().toolkit.mouse();
            const HWND panel = item().toolPanel();
            if (mouse.press(panel, {middle.x(), middle.y()}))
                mouse.release(panel, {middle.x(), middle.y()});
        });
    }

private:
    ItemWidget& item() const { return *static_cast<ItemWidget*>(widget()); }
    bool isWithKeyboard() const {
        const auto* panel = static_cast<const MirrorWidget*>(item().parentWidget());
        return panel->itemWithKeyboard() == &item();
    }
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    auto* const mirror = dynamic_cast<MirrorWidget*>(object);
    if (mirror != nullptr && widgetOf<TreeWidget>(*mirror) != nullptr)
        return new AccessibleTree(*mirror);
    if (mirror != nullptr)
        return new AccessibleWindow(*mirror);
    if (auto* item = dynamic_cast<ItemWidget*>(object))
        return new AccessibleItem(*item);
    return nullptr;
}

}  // namespace

void installAccessibility() {
    QAccessible::installFactory(makeInterface);
}

}  // namespace workbench::desktop
