#include "workbench/palettes/tool_palettes.h"

#include "workbench/base/text.h"
#include "workbench/core/host_call.h"

#include <utility>

namespace workbench {

ToolPalettes::ToolPalettes(MenuHost& menu, WindowSystem& windows)
    : m_menu(menu),
      m_windows(windows) {}

bool ToolPalettes::isInstalled() const {
    return !m_menu.catalog().data().toolPaletteSchemes.empty();
}

std::optional<std::vector<std::wstring>> ToolPalettes::groups(std::string_view scheme) const {
    const ToolPaletteScheme* const found = m_menu.catalog().findToolPaletteScheme(scheme);
    if (found == nullptr)
        return std::nullopt;
    std::vector<std::wstring> names;
    for (const std::string& name : found->groups)
        names.push_back(toWide(name));
    return names;
}

bool ToolPalettes::showScheme(std::string_view scheme, bool show) {
    std::optional<std::vector<std::wstring>> names = groups(scheme);
    if (!names)
        return false;
    if (m_window == nullptr) {
        if (!show)
            return true;
        m_window = std::make_unique<ToolPaletteWindow>(m_windows);
    }
    m_window->setGroups(std::move(*names));
    m_window->show(show);
    return true;
}

BOOL ToolPalettes::IsToolPaletteWindowVisible() const {
    HostCall call("CVxTcUiManager::IsToolPaletteWindowVisible");
    if (call.failed())
        return call.returns<BOOL>(0);
    return call.returns<BOOL>(m_window != nullptr && m_window->isOnScreen() ? 1 : 0);
}

CVxTcUiToolPaletteSet* ToolPalettes::GetToolPaletteWindow() {
    HostCall call("CVxTcUiManager::GetToolPaletteWindow");
    if (call.failed())
        return call.returns<CVxTcUiToolPaletteSet*>(nullptr);
    return call.returns<CVxTcUiToolPaletteSet*>(m_window.get());
}

}  // namespace workbench
