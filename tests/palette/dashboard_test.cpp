#include "palette/dashboard.h"

#include "module/manager.h"
#include "module/module.h"
#include "tests/palette/dashboard_fixture.h"

#include <cstdint>

namespace {

using Names = std::vector<std::string>;

/// The tool ID of the bar.
constexpr GUID kBarTool{
    0x12F4DCC5, 0x8FDB, 0x4937, {0x83, 0x87, 0xE6, 0x28, 0xD5, 0xC2, 0xAB, 0xBF}};

TEST_F(DashboardTest, IsDockedAtTheRightWithItsTitleIconAndTheme) {
    show();
    EXPECT_EQ(dashboard().GetWindowText(), L"Dashboard");
    EXPECT_FALSE(dashboard().IsFloating());
    EXPECT_EQ(frame().placeOf(dashboard()).edge, workbench::Edge::Right);
    EXPECT_NE(dashboard().GetTheme(), nullptr);
    EXPECT_EQ(bench().windows().gdi().iconCount(), 1U);
}

TEST_F(DashboardTest, TakesTheWidthOfItsFirstRectangleAndHasItRemembered) {
    constexpr CRect kFirst{50, 50, 285, 350};
    show();
    EXPECT_EQ(dashboard().GetWindowRect().Width(), 235);
    EXPECT_EQ(frame().placeOf(dashboard()).rect, kFirst);
    const auto remembered = bench().toolkit().tools().placeOf(kBarTool);
    ASSERT_TRUE(remembered.has_value());
    EXPECT_EQ(remembered->rect, kFirst);
}

TEST_F(DashboardTest, IsCreatedDockedPlacedAndThemedInThisOrder) {
    load();
    forget();
    dashboardManager()->showDashboard();
    // The theme comes twice: the palette inside the window is created with it already.
    EXPECT_EQ(
        takeLines({"LoadString", "CQrUiPaletteSet::Create", "CQrUiPaletteSet::OnCreate", "LoadIcon",
                   "CQrUiPaletteSet::SetTheme", "CQrUiPalette::Create", "CQrUiPanelSet::Create",
                   "CQrUiPaletteSet::AddPalette", "CQrUiDockControlBar::EnableDocking",
                   "CQrUiDockControlBar::RestoreControlBar", "CWnd::SetFocus",
                   "CFrameWnd::ShowControlBar", "vxedGetPanelSetData"}),
        (Names{
            "LoadString(203)", "CQrUiPaletteSet::Create(\"Dashboard\", 4194304, object, 46)",
            "CQrUiPaletteSet::OnCreate(object)", "LoadIcon(\"VxDashboardRes.dll\", 220)",
            "CQrUiPaletteSet::SetTheme(object)", "CQrUiPalette::Create(object)",
            "CQrUiPanelSet::Create(1342177280, object, 1)", "CQrUiPaletteSet::AddPalette(object)",
            "LoadString(208)", "CQrUiDockControlBar::EnableDocking(20480)",
            "CQrUiDockControlBar::RestoreControlBar(59421)", "CWnd::SetFocus(\"CFrameWnd\")",
            "CQrUiPaletteSet::SetTheme(object)", "CFrameWnd::ShowControlBar(object, 1, 0)",
            "vxedGetPanelSetData()", "LoadString(3996)", "LoadString(3997)", "LoadString(3995)"}));
}

TEST_F(DashboardTest, HasItsToolIdBeforeItsWindowIsFinished) {
    load();
    std::vector<GUID> ids;
    auto watch = bench().journal().addListener([&](const workbench::JournalRecord& record) {
        if (record.field("name") == workbench::Value("CQrUiPaletteSet::OnCreate"))
            ids.push_back(bench().toolkit().paletteSets().of(&dashboard()).toolId);
    });
    dashboardManager()->showDashboard();
    EXPECT_EQ(ids, std::vector<GUID>{kBarTool});
}

TEST_F(DashboardTest, GivesTheFrameTheFocus) {
    load();
    ASSERT_NE(bench().windows().focus(), frame().frame().m_hWnd);
    showLoaded();
    EXPECT_EQ(bench().windows().focus(), frame().frame().m_hWnd);
}

TEST_F(DashboardTest, ItsIconIsTheLargeAndTheSmallOneOfItsWindow) {
    load();
    forget();
    // Messages of a window are kept in the journal once it has a name.
    auto naming = bench().journal().addListener([this](const workbench::JournalRecord& record) {
        if (record.kind == "call" && record.field("name").asString() == "LoadIcon")
            bench().windows().setName(dashboard().m_hWnd, "Bar");
    });
    dashboardManager()->showDashboard();
    naming = {};
    std::vector<std::int64_t> sizes;
    std::vector<std::int64_t> icons;
    for (const auto& record : bench().journal().take("message")) {
        if (record.field("control") != "Bar" || record.field("number").asInteger() != WM_SETICON)
            continue;
        sizes.push_back(record.field("wparam").asInteger());
        icons.push_back(record.field("lparam").asInteger());
    }
    EXPECT_EQ(sizes, (std::vector<std::int64_t>{ICON_BIG, ICON_SMALL}));
    ASSERT_EQ(icons.size(), 2U);
    EXPECT_NE(icons[0], 0);
    EXPECT_EQ(icons[0], icons[1]);
}

TEST_F(DashboardTest, AMissingIconLeavesTheDefault) {
    load();
    fail("LoadIcon");
    showLoaded();
    EXPECT_EQ(bench().windows().gdi().iconCount(), 0U);
    EXPECT_EQ(shown().size(), 4U);
}

TEST_F(DashboardTest, ThePassedOnFailureOfTheToolkitLeavesNoWindow) {
    load();
    fail("CQrUiPaletteSet::OnCreate");
    dashboardManager()->showDashboard();
    EXPECT_EQ(dashboard().m_hWnd, nullptr);
    EXPECT_EQ(dashboard().palette()->m_hWnd, nullptr);
}

TEST_F(DashboardTest, WithTheThemeMissingThePaletteIsNeverCreated) {
    fail("QrUiGetThemeManager", 100);
    load();
    dashboardManager()->showDashboard();
    EXPECT_NE(dashboard().m_hWnd, nullptr);
    EXPECT_EQ(dashboard().palette()->m_hWnd, nullptr);
    EXPECT_EQ(panelSet().m_hWnd, nullptr);
    EXPECT_EQ(shown(), Names{});
    EXPECT_EQ(callCount("CQrUiPaletteSet::AddPalette"), 0);
}

TEST_F(DashboardTest, APaletteThatCannotBeCreatedIsNotAdded) {
    load();
    fail("CQrUiPalette::Create");
    dashboardManager()->showDashboard();
    EXPECT_EQ(callCount("CQrUiPaletteSet::AddPalette"), 0);
    EXPECT_EQ(shown(), Names{});
}

}  // namespace
