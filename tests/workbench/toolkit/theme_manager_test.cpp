#include "workbench/toolkit/theme_manager.h"

#include "tests/workbench/toolkit/toolkit_fixture.h"

namespace workbench {
namespace {

class ThemeManagerTest : public testing::Test {
protected:
    Workbench m_workbench{WorkbenchOptions{}};
    ThemeManager& m_themes = m_workbench.toolkit().themes();
};

TEST_F(ThemeManagerTest, TheToolPanelThemeHasFontsForLinksAndControls) {
    CQrUiTheme* const theme = QrUiGetThemeManager()->GetTheme(L"ToolPanel");
    ASSERT_NE(theme, nullptr);
    for (const int element : {2, 3}) {
        LOGFONT font;
        EXPECT_EQ(theme->GetFont(element, font), 1) << element;
        EXPECT_EQ(font.faceName, L"DejaVu Sans");
        EXPECT_EQ(font.height, 11);
    }
    m_themes.ReleaseTheme(theme);
}

TEST_F(ThemeManagerTest, HeldThemesAreCounted) {
    CQrUiTheme* const theme = m_themes.GetTheme(L"ToolPanel");
    EXPECT_EQ(m_themes.GetTheme(L"ToolPanel"), theme);
    EXPECT_EQ(m_themes.heldCount(), 2);
    m_themes.ReleaseTheme(theme);
    m_themes.ReleaseTheme(theme);
    m_themes.ReleaseTheme(nullptr);
    EXPECT_EQ(m_themes.heldCount(), 0);
}

TEST_F(ThemeManagerTest, AnUnknownThemeIsNull) {
    EXPECT_EQ(m_themes.GetTheme(L"toolpanel"), nullptr);
    EXPECT_EQ(m_themes.GetTheme(nullptr), nullptr);
    EXPECT_EQ(m_themes.heldCount(), 0);
}

TEST_F(ThemeManagerTest, ThemeAndManagerCanBeMissing) {
    m_workbench.faults().fail("CQrUiThemeManager::GetTheme");
    EXPECT_EQ(m_themes.GetTheme(L"ToolPanel"), nullptr);
    m_workbench.faults().fail("QrUiGetThemeManager");
    EXPECT_EQ(QrUiGetThemeManager(), nullptr);
}

}  // namespace
}  // namespace workbench
