#pragma once

#include "workbench/toolkit/theme.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace workbench {

/// The themes by name. "ToolPanel" is there from the start.
class ThemeManager final : public CQrUiThemeManager {
public:
    ThemeManager();

    /// The theme of a name without holding it; null if there is none.
    Theme* find(std::wstring_view name) const;
    /// How often themes were handed out and not given back.
    int heldCount() const { return m_held; }

    // CQrUiThemeManager:
    CQrUiTheme* GetTheme(const wchar_t* name) override;
    void ReleaseTheme(CQrUiTheme* theme) override;

private:
    std::map<std::wstring, std::unique_ptr<Theme>, std::less<>> m_themes;
    int m_held = 0;
};

}  // namespace workbench
