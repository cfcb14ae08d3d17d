#include "core/theme.h"

#include "tests/palette/palette_fixture.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

namespace {

using Lines = std::vector<std::string>;

/// The theme's element for controls, and the data pointer under which their font is published.
constexpr int kControlFont = 3;
constexpr int kFontPointer = 2;

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

TEST_F(DashboardThemeTest, IsAskedForByNameAndGivenBackAfterTheLastChangeWasHeard) {
    m_theme.acquire();
    EXPECT_EQ(takeLines(),
              (Lines{"QrUiGetThemeManager()", "CQrUiThemeManager::GetTheme(\"ToolPanel\")",
                     "CQrUiTheme::RegisterReactor(object)"}));
    m_theme.release();
    EXPECT_EQ(takeLines(), (Lines{"CQrUiTheme::UnregisterReactor(object)", "QrUiGetThemeManager()",
                                  "CQrUiThemeManager::ReleaseTheme(object)"}));
}

TEST_F(DashboardThemeTest, FontIsMadeOfTheElementForControlsAndPublishedWithoutTellingItself) {
    toolkitTheme().setFont(kControlFont, {L"Wide", 17, 600, false});
    m_theme.acquire();
    forget();
    m_theme.buildFont();
    EXPECT_EQ(
        takeLines(),
        (Lines{"CQrUiTheme::GetFont(3)", "CFont::CreateFontIndirect(\"Wide\", 17, 600)",
               "CQrUiTheme::SetDataPtr(2, object)", "CQrUiTheme::ResumeModifiedNotifications()"}));
    EXPECT_NE(m_theme.font(), nullptr);
    EXPECT_EQ(toolkitTheme().dataPtr(kFontPointer), m_theme.font());
    m_theme.deleteFont();
    m_theme.release();
}

TEST_F(DashboardThemeTest, ChangeOfAnyElementReplacesTheFontByOneOfItsNewDescription) {
    m_theme.acquire();
    m_theme.buildFont();
    EXPECT_EQ(fonts(), 1U);
    toolkitTheme().setFont(kControlFont, {L"Narrow", 9, 300, false});
    forget();
    toolkitTheme().changeElement(1);
    EXPECT_EQ(takeLines(), (Lines{"CFont::~CFont(\"DejaVu Sans\")", "CQrUiTheme::GetFont(3)",
                                  "CFont::CreateFontIndirect(\"Narrow\", 9, 300)",
                                  "CQrUiTheme::SetDataPtr(2, object)",
                                  "CQrUiTheme::ResumeModifiedNotifications()"}));
    EXPECT_EQ(toolkitTheme().dataPtr(kFontPointer), m_theme.font());
    EXPECT_EQ(fonts(), 1U);
    m_theme.deleteFont();
    EXPECT_EQ(fonts(), 0U);
    m_theme.release();
}

TEST_F(DashboardThemeTest, ChangeEndsTheOldFontBeforeTheElementIsRead) {
    m_theme.acquire();
    m_theme.buildFont();
    std::vector<std::size_t> fontsAtReading;
    const auto watch = bench().journal().addListener([&](const workbench::JournalRecord& record) {
        if (record.field("name") == workbench::Value("CQrUiTheme::GetFont"))
            fontsAtReading.push_back(fonts());
    });
    toolkitTheme().changeElement(kControlFont);
    EXPECT_EQ(fontsAtReading, std::vector<std::size_t>{0U});
    m_theme.deleteFont();
    m_theme.release();
}

TEST_F(DashboardThemeTest, FontIsDeletedOnceAndItsPointerStaysPublished) {
    m_theme.acquire();
    m_theme.buildFont();
    m_theme.deleteFont();
    m_theme.deleteFont();
    EXPECT_EQ(fonts(), 0U);
    EXPECT_EQ(m_theme.font(), nullptr);
    EXPECT_NE(toolkitTheme().dataPtr(kFontPointer), nullptr);
    m_theme.release();
}

TEST_F(DashboardThemeTest, MissingThemeIsPassedOverAtEachStep) {
    fail("CQrUiThemeManager::GetTheme");
    m_theme.acquire();
    EXPECT_EQ(m_theme.theme(), nullptr);
    forget();
    m_theme.buildFont();
    m_theme.deleteFont();
    m_theme.release();
    EXPECT_EQ(takeLines(), Lines{});
    EXPECT_EQ(m_theme.font(), nullptr);
}

TEST_F(DashboardThemeTest, MissingToolkitIsPassedOver) {
    fail("QrUiGetThemeManager");
    m_theme.acquire();
    EXPECT_EQ(m_theme.theme(), nullptr);
}

}  // namespace
