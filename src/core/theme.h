#pragma once

#include <hostapi/qrui18/theme.h>

#include <memory>

/// The module's theme, and the font that is made from it and shared through it.
class VxDaTheme {
public:
    /// Gets the theme and begins to follow its changes; a missing theme leaves `theme()` null.
    void acquire();
    /// Makes the font from the theme's element for controls and publishes it in the theme.
    void buildFont();
    /// Ends the font.
    void deleteFont();
    /// Stops following and gives the theme back.
    void release();

    /// The font of the controls; null before the first build and after `deleteFont`.
    CFont* font() const { return m_font.get(); }
    /// Null before `acquire`, after `release`, or if the host has no such theme.
    CQrUiTheme* theme() const { return m_theme; }

private:
    class CVxDaThemeModifiedReactor final : public CQrUiThemeModifiedReactor {
    public:
        explicit CVxDaThemeModifiedReactor(VxDaTheme& owner) : m_owner(owner) {}
        void ThemeModified(int element) override;

    private:
        VxDaTheme& m_owner;
    };

    CQrUiTheme* m_theme = nullptr;  // not owned
    CVxDaThemeModifiedReactor m_reactor{*this};
    std::unique_ptr<CFont> m_font;  // null before the first build
};

/// The theme of the module.
VxDaTheme& dashboardThemeOwner();

/// The theme itself; null while there is none.
CQrUiTheme* dashboardTheme();
/// The font of the controls; null while there is none.
CFont* dashboardFont();
