#include "workbench/toolkit/context_menu.h"

#include "workbench/toolkit/focus_return.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

namespace workbench {

void runContextMenu(Toolkit& toolkit, HWND window, const CMenu& menu,
                    const std::function<bool(Window& window, UINT command)>& own) {
    WindowSystem& windows = toolkit.windows();
    const HWND before = windows.focus();
    const std::optional<UINT> chosen = toolkit.menus().track(windows.menus().read(menu.m_hMenu));
    Window* const living = windows.find(window);
    if (!chosen || living == nullptr)
        return;
    if (!own(*living, *chosen))
        windows.send(window, WM_COMMAND, *chosen, 0);
    giveFocusBack(toolkit, window, before);
}

}  // namespace workbench
