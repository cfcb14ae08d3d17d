#include "workbench/palettes/tool_palette_window.h"

#include "workbench/core/host_call.h"

#include <algorithm>
#include <utility>

namespace workbench {

ToolPaletteWindow::ToolPaletteWindow(WindowSystem& windows) : m_windows(windows) {
    constexpr CRect kPlace{40, 80, 280, 560};  // pixels of the screen
    WindowCreation creation;
    creation.className = "CVxTcUiToolPaletteSet";
    creation.rect = kPlace;
    if (m_windows.create(m_window, std::move(creation)))
        m_windows.setName(m_window.m_hWnd, "ToolPalettes");
}

void ToolPaletteWindow::setGroups(std::vector<std::wstring> groups) {
    m_groups = std::move(groups);
    const bool isKept =
        std::find(m_groups.begin(), m_groups.end(), m_activeGroup) != m_groups.end();
    if (!isKept)
        showGroup(m_groups.empty() ? std::wstring() : m_groups.front());
}

void ToolPaletteWindow::show(bool visible) {
    m_windows.show(m_window.m_hWnd, visible);
}

bool ToolPaletteWindow::isOnScreen() const {
    return m_windows.isOnScreen(m_window.m_hWnd);
}

BOOL ToolPaletteWindow::SetActivePaletteGroup(const VxString& group) {
    HostCall call("CVxTcUiToolPaletteSet::SetActivePaletteGroup", {group});
    const bool isKnown = std::find(m_groups.begin(), m_groups.end(), group) != m_groups.end();
    if (call.failed() || !isKnown)
        return call.returns<BOOL>(0);
    showGroup(group);
    return call.returns<BOOL>(1);
}

void ToolPaletteWindow::showGroup(const std::wstring& group) {
    m_activeGroup = group;
    m_windows.state().setText(m_window.m_hWnd, group);
}

}  // namespace workbench
