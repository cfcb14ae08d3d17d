#include "core/theme.h"

#include "core/constants.h"
#include "tests/palette/palette_fixture.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

namespace {

class DashboardThemeTest : public PaletteTest {
protected:
    workbench::Theme& toolkitTheme() { return *bench().toolkit().themes().find(L"ToolPanel"); }
    int held() { return bench().toolkit().themes().heldCount(); }
    std::size_t fonts() { return bench().windows().gdi().fontCount(); }

    VxDaTheme m_theme;
};

TEST_F(DashboardThemeTest, IsHeldAndFollowedUntilItIsReleased) {
    m_theme.acquire();
    EXPECT_EQ(m_theme.theme(), &toolkitTheme());
    EXPECT_EQ(held(), 1);
    EXPECT_EQ(toolkitTheme().reactorCount(), 1U);
    m_theme.release();
    EXPECT_EQ(m_theme.theme(), nullptr);
    EXPECT_EQ(held(), 0);
    EXPECT_EQ(toolkitTheme().reactorCount(), 0U);
}

TEST_F(DashboardThemeTest, FontIsPublishedWithoutTellingItself) {
    m_theme.acquire();
    forget();
    m_theme.buildFont();
    EXPECT_NE(toolkitTheme().dataPtr(kThemeFontPointer), nullptr);
    EXPECT_EQ(callCount("CQrUiTheme::SetDataPtr"), 1);
    EXPECT_EQ(callCount("CQrUiTheme::GetFont"), 1) << "publishing led back";
    m_theme.deleteFont();
    m_theme.release();
}

TEST_F(DashboardThemeTest, ChangeReplacesTheFontAndKeepsOne) {
    m_theme.acquire();
    m_theme.buildFont();
    EXPECT_EQ(fonts(), 1U);
    forget();
    toolkitTheme().changeElement(kThemeControlFont);
    EXPECT_EQ(callCount("CQrUiTheme::SetDataPtr"), 1);
    EXPECT_EQ(fonts(), 1U);
    m_theme.deleteFont();
    EXPECT_EQ(fonts(), 0U);
    m_theme.release();
}

TEST_F(DashboardThemeTest, FontIsDeletedOnceAndItsPointerStaysPublished) {
    m_theme.acquire();
    m_theme.buildFont();
    m_theme.deleteFont();
    m_theme.deleteFont();
    EXPECT_EQ(fonts(), 0U);
    EXPECT_NE(toolkitTheme().dataPtr(kThemeFontPointer), nullptr);
    m_theme.release();
}

TEST_F(DashboardThemeTest, MissingThemeIsPassedOverAtEachStep) {
    fail("CQrUiThemeManager::GetTheme");
    m_theme.acquire();
    EXPECT_EQ(m_theme.theme(), nullptr);
    m_theme.buildFont();
    m_theme.deleteFont();
    m_theme.release();
    EXPECT_EQ(fonts(), 0U);
    EXPECT_EQ(callCount("CQrUiThemeManager::ReleaseTheme"), 0);
}

TEST_F(DashboardThemeTest, MissingToolkitIsPassedOver) {
    fail("QrUiGetThemeManager");
    m_theme.acquire();
    EXPECT_EQ(m_theme.theme(), nullptr);
}

}  // namespace
