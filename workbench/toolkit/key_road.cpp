#include "workbench/toolkit/key_road.h"

#include "workbench/core/workbench.h"
#include "workbench/toolkit/edit_widget.h"
#include "workbench/toolkit/input_messages.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

namespace workbench {

namespace {

void moveToNextField() {
    WindowSystem& windows = Workbench::current().windows();
    const HWND next = nextField(windows.focus());
    if (next == nullptr || !windows.setFocus(next))
        return;
    Window& window = *windows.find(next);
    if (auto* const edit = dynamic_cast<EditWidget*>(window.widget.get()); edit != nullptr)
        edit->selectAll(window);
}

}  // namespace

void passKeyOn(WPARAM key, LPARAM details) {
    if (key == kKeyTab) {
        moveToNextField();
        return;
    }
    Workbench& workbench = Workbench::current();
    workbench.windows().send(workbench.toolkit().frame().commandLine().m_hWnd, WM_KEYDOWN, key,
                             details);
}

HWND nextField(HWND from) {
    WindowSystem& windows = Workbench::current().windows();
    const CQrUiPaletteSet* const set = paletteSetAbove(from);
    if (set == nullptr)
        return nullptr;
    HWND first = nullptr;
    bool isBehind = false;
    for (const HWND window : windows.descendants(set->m_hWnd)) {
        const Window* const found = windows.find(window);
        const bool isField = found->widget != nullptr && found->widget->reportsFocus() &&
                             windows.isOnScreen(window) && windows.takesInput(window);
        if (isField && window != from) {
            if (isBehind)
                return window;
            if (first == nullptr)
                first = window;
        }
        isBehind = isBehind || window == from;
    }
    return first;
}

}  // namespace workbench
