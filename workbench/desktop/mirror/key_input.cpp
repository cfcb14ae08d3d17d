#include "workbench/desktop/mirror/key_input.h"

#include "workbench/desktop/look/text.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/toolkit/button_widget.h"
#include "workbench/toolkit/edit_widget.h"
#include "workbench/toolkit/focus_return.h"
#include "workbench/toolkit/input_messages.h"
#include "workbench/toolkit/panel_widget.h"
#include "workbench/toolkit/tool_panel_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/toolkit/tree_widget.h"
#include "workbench/windows/window_system.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <algorithm>
#include <iterator>

namespace workbench::desktop {

namespace {

struct KeyRow {
    int key;
    const char* name;
};
constexpr KeyRow kKeys[] = {
    {Qt::Key_Return, "enter"},
    {Qt::Key_Enter, "enter"},
    {Qt::Key_Escape, "escape"},
    {Qt::Key_Tab, "tab"},
    {Qt::Key_Backtab, "tab"},
    {Qt::Key_Left, "left"},
    {Qt::Key_Right, "right"},
    {Qt::Key_Up, "up"},
    {Qt::Key_Down, "down"},
    {Qt::Key_Home, "home"},
    {Qt::Key_End, "end"},
    {Qt::Key_PageUp, "pageup"},
    {Qt::Key_PageDown, "pagedown"},
    {Qt::Key_Backspace, "backspace"},
    {Qt::Key_Delete, "delete"},
    {Qt::Key_F1, "f1"},
    {Qt::Key_F2, "f2"},
};

EditWidget* editWithKeyboard(Stage& stage) {
    const Window* const window = stage.windows.find(stage.windows.focus());
    return window == nullptr ? nullptr : dynamic_cast<EditWidget*>(window->widget.get());
}

QString selectionOf(Stage& stage, EditWidget& edit) {
    const LineEditor& line = edit.editor(*stage.windows.find(stage.windows.focus()));
    const std::size_t from = std::min(line.caret(), line.anchor());
    const std::size_t to = std::max(line.caret(), line.anchor());
    return toQt(std::wstring_view(line.text()).substr(from, to - from));
}

/// Copies, cuts or pastes. False for another key.
bool useClipboard(Stage& stage, const QKeyEvent& event) {
    EditWidget* const edit = editWithKeyboard(stage);
    if (edit == nullptr)
        return false;
    QClipboard& clipboard = *QGuiApplication::clipboard();
    if (event.matches(QKeySequence::Paste)) {
        gestures::typeText(stage.toolkit, toHost(clipboard.text()));
        return true;
    }
    const bool cut = event.matches(QKeySequence::Cut);
    if (!cut && !event.matches(QKeySequence::Copy))
        return false;
    const QString selected = selectionOf(stage, *edit);
    if (selected.isEmpty())
        return true;
    clipboard.setText(selected);
    if (cut)
        gestures::pressKey(stage.toolkit, "delete");
    return true;
}

const char* nameOf(const QKeyEvent& event) {
    const auto* row = std::find_if(std::begin(kKeys), std::end(kKeys),
                                   [&](const KeyRow& each) { return each.key == event.key(); });
    return row == std::end(kKeys) ? nullptr : row->name;
}

/// Whether what has the keyboard does something with letters of its own: a field, a tree, a check.
bool takesLetters(Stage& stage) {
    const Window* const window = stage.windows.find(stage.windows.focus());
    return editWithKeyboard(stage) != nullptr ||
           (window != nullptr && (dynamic_cast<TreeWidget*>(window->widget.get()) != nullptr ||
                                  dynamic_cast<ButtonWidget*>(window->widget.get()) != nullptr));
}

/// Whether the space bar is to click what has the keyboard: a tool, or a title.
bool isButton(const Stage& stage) {
    const Window* const window = stage.windows.find(stage.windows.focus());
    return window != nullptr && (dynamic_cast<ToolPanelWidget*>(window->widget.get()) != nullptr ||
                                 dynamic_cast<PanelWidget*>(window->widget.get()) != nullptr);
}

/// Brings the keyboard back to the drawing behind a key that ends an entry.
void giveKeyboardBack(Stage& stage, HWND before) {
    if (stage.windows.focus() == before && !stage.toolkit.balloons().isShown())
        giveFocusBack(stage.toolkit, before, before);
}

void pressNamed(Stage& stage, const QKeyEvent& event, const char* name) {
    const HWND before = stage.windows.focus();
    const bool wasButton = isButton(stage);
    gestures::pressKey(stage.toolkit, name);
    const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    // A title keeps the keyboard, to roll its panel down again.
    if (event.key() == Qt::Key_Escape || (isEnter && !wasButton))
        giveKeyboardBack(stage, before);
}

void type(Stage& stage, const QKeyEvent& event) {
    if (event.matches(QKeySequence::SelectAll)) {
        stage.windows.input(nullptr, kCharMessage, kCharSelectAll, 0);
        return;
    }
    if (event.text().isEmpty() || !event.text().front().isPrint())
        return;
    if (takesLetters(stage))
        gestures::typeText(stage.toolkit, toHost(event.text()));
    else if (stage.typed)
        stage.typed(event.text());
}

}  // namespace

void pressKey(Stage& stage, const QKeyEvent& event) {
    holdModifiers(stage, event.modifiers());
    stage.pump.act([&] {
        const char* const name =
            event.key() == Qt::Key_Space && isButton(stage) ? "enter" : nameOf(event);
        if (name != nullptr)
            pressNamed(stage, event, name);
        else if (!useClipboard(stage, event))
            type(stage, event);
    });
}

bool isOwnKey(Stage& stage, const QKeyEvent& event) {
    constexpr Qt::KeyboardModifiers kCommands =
        Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if ((event.modifiers() & kCommands) == 0)
        return nameOf(event) != nullptr || !event.text().isEmpty();
    // A field's own, whether it does something with them or not.
    constexpr QKeySequence::StandardKey kOfFields[] = {QKeySequence::Copy,  QKeySequence::Cut,
                                                       QKeySequence::Paste, QKeySequence::SelectAll,
                                                       QKeySequence::Undo,  QKeySequence::Redo};
    return editWithKeyboard(stage) != nullptr &&
           std::any_of(std::begin(kOfFields), std::end(kOfFields),
                       [&event](QKeySequence::StandardKey key) { return event.matches(key); });
}

void holdModifiers(Stage& stage, Qt::KeyboardModifiers modifiers) {
    stage.windows.keys().hold(VK_SHIFT, modifiers.testFlag(Qt::ShiftModifier));
}

}  // namespace workbench::desktop
