#include "workbench/gestures/list_gestures.h"

#include "workbench/gestures/gesture_error.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/toolkit/combo_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <string>

namespace workbench::gestures {

namespace {

struct List {
    Window& window;
    ComboWidget& combo;
};

List listOf(Toolkit& toolkit, HWND handle) {
    Window* const window = toolkit.windows().find(handle);
    auto* const combo =
        window == nullptr ? nullptr : dynamic_cast<ComboWidget*>(window->widget.get());
    if (combo == nullptr)
        throw GestureError("there is no list to open");
    return {*window, *combo};
}

}  // namespace

bool openList(Toolkit& toolkit, HWND combo) {
    const List list = listOf(toolkit, combo);
    return list.combo.isOpen() || clickAt(toolkit, combo, middleOf(toolkit, combo));
}

bool chooseFromList(Toolkit& toolkit, HWND combo, int index) {
    if (!openList(toolkit, combo))
        return false;
    const List list = listOf(toolkit, combo);
    if (list.combo.choose(list.window, index))
        return true;
    closeList(toolkit, combo);
    throw GestureError("the list has no entry " + std::to_string(index) + " that can be chosen");
}

bool closeList(Toolkit& toolkit, HWND combo) {
    const List list = listOf(toolkit, combo);
    return !list.combo.isOpen() || clickAt(toolkit, combo, middleOf(toolkit, combo));
}

}  // namespace workbench::gestures
