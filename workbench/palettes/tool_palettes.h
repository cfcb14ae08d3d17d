#pragma once

#include "workbench/menu/menu_host.h"
#include "workbench/palettes/tool_palette_window.h"

#include <hostapi/vxtcui.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

/// The host's tool palettes: installed if the menu data has a scheme of them. The window comes into
/// being with the first scheme that is shown.
class ToolPalettes final : public CVxTcUiManager {
public:
    ToolPalettes(MenuHost& menu, WindowSystem& windows);

    bool isInstalled() const;
    /// The names of a scheme's groups in their order; nothing for an unknown scheme.
    std::optional<std::vector<std::wstring>> groups(std::string_view scheme) const;
    /// Shows or hides the window with a scheme's groups. False for an unknown scheme.
    bool showScheme(std::string_view scheme, bool show);
    /// The window; null before it was first shown.
    ToolPaletteWindow* window() const { return m_window.get(); }

    // CVxTcUiManager:
    BOOL IsToolPaletteWindowVisible() const override;
    CVxTcUiToolPaletteSet* GetToolPaletteWindow() override;

private:
    MenuHost& m_menu;
    WindowSystem& m_windows;
    std::unique_ptr<ToolPaletteWindow> m_window;
};

}  // namespace workbench
