#include "workbench/toolkit/key_road.h"

#include "workbench/toolkit/edit_widget.h"
#include "workbench/toolkit/focus_return.h"
#include "workbench/toolkit/input_messages.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <algorithm>
#include <vector>

namespace workbench {

bool goToNextField(Toolkit& toolkit, HWND from, bool backwards) {
    WindowSystem& windows = toolkit.windows();
    const HWND next = nextField(windows, from, backwards);
    if (next == nullptr || !takeFocus(toolkit, next))
        return false;
    Window& window = *windows.find(next);
    if (auto* const edit = dynamic_cast<EditWidget*>(window.widget.get()); edit != nullptr)
        edit->selectAll(window);
    return true;
}

void passKeyOn(Toolkit& toolkit, WPARAM key, LPARAM details) {
    if (key == kKeyTab) {
        const WindowSystem& windows = toolkit.windows();
        goToNextField(toolkit, windows.focus(), toolkit.windows().keys().isHeld(VK_SHIFT));
        return;
    }
    toolkit.windows().send(toolkit.frame().commandLine().m_hWnd, WM_KEYDOWN, key, details);
}

HWND nextField(const WindowSystem& windows, HWND from, bool backwards) {
    const CQrUiPaletteSet* const set = paletteSetAbove(windows, from);
    const HWND root = set == nullptr ? windows.popupAbove(from) : set->m_hWnd;
    std::vector<HWND> all = windows.descendants(root);
    if (backwards)
        std::reverse(all.begin(), all.end());
    // Those behind the window come first.
    const auto here = std::find(all.begin(), all.end(), from);
    if (here != all.end())
        std::rotate(all.begin(), here + 1, all.end());
    const auto next = std::find_if(all.begin(), all.end(), [&](HWND window) {
        const Window* const found = windows.find(window);
        return window != from && found->widget != nullptr && found->widget->takesTab() &&
               windows.isOnScreen(window) && windows.takesInput(window);
    });
    return next == all.end() ? nullptr : *next;
}

}  // namespace workbench
