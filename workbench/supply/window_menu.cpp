#include "workbench/core/host_call.h"
#include "workbench/host/workbench.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/window.h>

#include <optional>
#include <string>

namespace {

using workbench::HostCall;
using workbench::Workbench;

workbench::MenuTable& menus() {
    return Workbench::current().windows().menus();
}

}  // namespace

CMenu::~CMenu() {
    if (m_hMenu != nullptr && Workbench::living() != nullptr)
        menus().destroy(m_hMenu);
}

BOOL CMenu::CreatePopupMenu() {
    HostCall call("CMenu::CreatePopupMenu");
    if (call.failed() || menus().isMenu(m_hMenu))
        return call.returns(0);
    m_hMenu = menus().create();
    return call.returns(1);
}

BOOL CMenu::DestroyMenu() {
    HostCall call("CMenu::DestroyMenu");
    if (call.failed())
        return call.returns(0);
    const bool wasAlive = menus().destroy(m_hMenu);
    m_hMenu = nullptr;
    return call.returns(wasAlive ? 1 : 0);
}

BOOL CMenu::IsMenu() const {
    return menus().isMenu(m_hMenu) ? 1 : 0;
}

BOOL CMenu::AppendMenu(UINT flags, std::uintptr_t item, const wchar_t* text) {
    // A popup's handle stays out of the journal: it differs from run to run.
    const UINT command = (flags & MF_POPUP) != 0 ? 0 : static_cast<UINT>(item);
    HostCall call("CMenu::AppendMenu", {flags, command, text});
    if (call.failed())
        return call.returns(0);
    std::wstring line = text == nullptr ? std::wstring() : text;
    return call.returns(menus().append(m_hMenu, flags, item, std::move(line)) ? 1 : 0);
}

int CMenu::GetMenuItemCount() const {
    return menus().lineCount(m_hMenu);
}

int CMenu::GetMenuStateAt(int position) const {
    return menus().stateAt(m_hMenu, position);
}

int CMenu::EnableMenuItem(UINT item, UINT flags) {
    HostCall call("CMenu::EnableMenuItem", {item, flags});
    if (call.failed())
        return call.returns(-1);
    return call.returns(menus().enable(m_hMenu, item, flags));
}

BOOL CMenu::TrackPopupMenu(UINT flags, int x, int y, CWnd* owner) {
    HostCall call("CMenu::TrackPopupMenu", {flags, x, y});
    if (call.failed() || owner == nullptr || !menus().isMenu(m_hMenu))
        return call.returns(0);
    workbench::WindowSystem& windows = Workbench::current().windows();
    const HWND window = owner->m_hWnd;
    const std::optional<UINT> chosen =
        Workbench::current().toolkit().menus().track(menus().read(m_hMenu));
    if (chosen)
        windows.send(window, WM_COMMAND, *chosen, 0);
    return call.returns(1);
}

BOOL CMenu::RemoveMenuAt(int position) {
    HostCall call("CMenu::RemoveMenuAt", {position});
    if (call.failed())
        return call.returns(0);
    return call.returns(menus().remove(m_hMenu, position) ? 1 : 0);
}
