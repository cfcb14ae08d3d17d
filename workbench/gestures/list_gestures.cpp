#include "workbench/gestures/list_gestures.h"

#include "workbench/gestures/gesture_error.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/host/workbench.h"
#include "workbench/toolkit/combo_widget.h"
#include "workbench/windows/window_system.h"

#include <string>

namespace workbench::gestures {

namespace {

struct List {
    Window& window;
    ComboWidget& combo;
};

List listOf(HWND handle) {
    Window* const window = Workbench::current().windows().find(handle);
    auto* const combo =
        window == nullptr ? nullptr : dynamic_cast<ComboWidget*>(window->widget.get());
    if (combo == nullptr)
        throw GestureError("there is no list to open");
    return {*window, *combo};
}

}  // namespace

bool openList(HWND combo) {
    const List list = listOf(combo);
    return list.combo.isOpen() || clickAt(combo, middleOf(combo));
}

bool chooseFromList(HWND combo, int index) {
    if (!openList(combo))
        return false;
    const List list = listOf(combo);
    if (list.combo.choose(list.window, index))
        return true;
    closeList(combo);
    throw GestureError("the list has no entry " + std::to_string(index) + " that can be chosen");
}

bool closeList(HWND combo) {
    const List list = listOf(combo);
    return !list.combo.isOpen() || clickAt(combo, middleOf(combo));
}

}  // namespace workbench::gestures
