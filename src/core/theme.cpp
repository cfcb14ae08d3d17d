#include "core/theme.h"

#include "core/constants.h"
#include "core/module_call.h"

void VxDaTheme::acquire() {
    CQrUiThemeManager* manager = QrUiGetThemeManager();
    m_theme = manager == nullptr ? nullptr : manager->GetTheme(kThemeName);
    if (m_theme != nullptr)
        m_theme->RegisterReactor(&m_reactor);
}

void VxDaTheme::buildFont() {
    if (m_theme == nullptr)
        return;
    LOGFONT font;
    m_theme->GetFont(kThemeControlFont, font);
    m_font = std::make_unique<CFont>();
    m_font->CreateFontIndirect(font);
    // Suspended, because publishing is itself a change that would lead back here.
    m_theme->SuspendModifiedNotifications();
    m_theme->SetDataPtr(kThemeFontPointer, m_font.get());
    m_theme->ResumeModifiedNotifications();
}

void VxDaTheme::deleteFont() {
    m_font.reset();
}

void VxDaTheme::release() {
    if (m_theme == nullptr)
        return;
    m_theme->UnregisterReactor(&m_reactor);
    if (CQrUiThemeManager* manager = QrUiGetThemeManager())
        manager->ReleaseTheme(m_theme);
    m_theme = nullptr;
}

void VxDaTheme::CVxDaThemeModifiedReactor::ThemeModified(int /*element*/) {
    const ModuleCall call;
    m_owner.deleteFont();
    m_owner.buildFont();
}

VxDaTheme& dashboardThemeOwner() {
    static VxDaTheme theme;
    return theme;
}

CQrUiTheme* dashboardTheme() {
    return dashboardThemeOwner().theme();
}

CFont* dashboardFont() {
    return dashboardThemeOwner().font();
}
