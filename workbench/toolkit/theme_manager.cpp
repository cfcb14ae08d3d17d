#include "workbench/toolkit/theme_manager.h"

#include "workbench/core/host_call.h"

namespace workbench {

namespace {

struct ThemeFont {
    int element;
    int height;  // pixels
    int weight;
};

constexpr const wchar_t* kFontFace = L"DejaVu Sans";
constexpr ThemeFont kToolPanelFonts[] = {
    {1, 11, 700},  // titles
    {2, 11, 400},  // links
    {3, 11, 400},  // controls
};

}  // namespace

ThemeManager::ThemeManager() {
    auto theme = std::make_unique<Theme>();
    for (const ThemeFont& font : kToolPanelFonts)
        theme->setFont(font.element, {kFontFace, font.height, font.weight, false});
    m_themes.emplace(L"ToolPanel", std::move(theme));
}

Theme* ThemeManager::find(std::wstring_view name) const {
    const auto found = m_themes.find(name);
    return found == m_themes.end() ? nullptr : found->second.get();
}

CQrUiTheme* ThemeManager::GetTheme(const wchar_t* name) {
    HostCall call("CQrUiThemeManager::GetTheme", {name});
    Theme* const theme = call.failed() || name == nullptr ? nullptr : find(name);
    if (theme != nullptr)
        ++m_held;
    call.returns(static_cast<const void*>(theme));
    return theme;
}

void ThemeManager::ReleaseTheme(CQrUiTheme* theme) {
    const HostCall call("CQrUiThemeManager::ReleaseTheme", {theme});
    if (theme != nullptr)
        --m_held;
}

}  // namespace workbench
