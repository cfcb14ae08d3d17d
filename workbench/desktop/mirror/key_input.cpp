#include "workbench/desktop/mirror/key_input.h"

#include "workbench/desktop/look/text.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/toolkit/edit_widget.h"
#include "workbench/toolkit/input_messages.h"
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
    {Qt::Key_Return, "enter"},      {Qt::Key_Enter, "enter"},
    {Qt::Key_Escape, "escape"},     {Qt::Key_Tab, "tab"},
    {Qt::Key_Backtab, "tab"},       {Qt::Key_Left, "left"},
    {Qt::Key_Right, "right"},       {Qt::Key_Up, "up"},
    {Qt::Key_Down, "down"},         {Qt::Key_Home, "home"},
    {Qt::Key_End, "end"},           {Qt::Key_PageUp, "pageup"},
    {Qt::Key_PageDown, "pagedown"}, {Qt::Key_Backspace, "backspace"},
    {Qt::Key_Delete, "delete"},     {Qt::Key_F1, "f1"},
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

void type(Stage& stage, const QKeyEvent& event) {
    if (event.matches(QKeySequence::SelectAll)) {
        stage.windows.input(nullptr, kCharMessage, kCharSelectAll, 0);
        return;
    }
    if (event.text().isEmpty() || !event.text().front().isPrint())
        return;
    if (editWithKeyboard(stage) != nullptr)
        gestures::typeText(stage.toolkit, toHost(event.text()));
    else if (stage.typed)
        stage.typed(event.text());
}

}  // namespace

void pressKey(Stage& stage, const QKeyEvent& event) {
    holdModifiers(stage, event.modifiers());
    stage.pump.act([&] {
        const auto* row = std::find_if(std::begin(kKeys), std::end(kKeys),
                                       [&](const KeyRow& each) { return each.key == event.key(); });
        if (row != std::end(kKeys))
            gestures::pressKey(stage.toolkit, row->name);
        else if (!useClipboard(stage, event))
            type(stage, event);
    });
}

void holdModifiers(Stage& stage, Qt::KeyboardModifiers modifiers) {
    stage.windows.keys().hold(VK_SHIFT, modifiers.testFlag(Qt::ShiftModifier));
}

}  // namespace workbench::desktop
