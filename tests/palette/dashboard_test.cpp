#include "palette/dashboard.h"

#include "module/manager.h"
#include "module/module.h"
#include "palette/xml_node.h"
#include "tests/palette/palette_fixture.h"
#include "tests/support/answer_in_place.h"
#include "tests/support/call_lines.h"
#include "tests/support/window_tap.h"
#include "workbench/editor/editor.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/vxdashboard.h>
#include <hostapi/vxut.h>
#include <hostapi/zorq/frame_windows.h>
#include <hostapi/zorq/profiles.h>

#include <algorithm>
#include <cstdint>

namespace {

using Names = std::vector<std::string>;

/// The tool ID of the bar.
constexpr GUID kBarTool{
    0x12F4DCC5, 0x8FDB, 0x4937, {0x83, 0x87, 0xE6, 0x28, 0xD5, 0xC2, 0xAB, 0xBF}};

/// Notes what the bar's listeners are told.
class Listener final : public VxDaDashboardReactor {
public:
    void panelsWillUnload() override {}
    void panelsUnloaded() override {}
    void panelsWillLoad() override {}
    void panelsLoaded() override {}
    void controlsWillBeReleased() override {}
    void visibilityChanged(BOOL visible) override { told.push_back(visible); }

    std::vector<BOOL> told;
};

class DashboardTest : public PaletteTest {
protected:
    workbench::MainFrame& frame() { return bench().toolkit().frame(); }
    NodePtr makeNode() {
        return NodePtr(vxProfileManagerPtr()->profileStorage(L"Default", true)->createNode(L"Bar"));
    }
    bool hasVisibleStyle() { return (dashboard().GetStyle() & WS_VISIBLE) != 0; }
    Names menuBehind(const std::vector<UINT>& begun) {
        CMenu menu;
        menu.CreatePopupMenu();
        for (const UINT flags : begun)
            menu.AppendMenu(flags, 1, L"Begun");
        EXPECT_EQ(dashboard().AddContextMenuItems(menu), 1);
        return labels(bench().windows().menus().read(menu.m_hMenu));
    }
};

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

TEST_F(DashboardTest, TheUsersClosingAndShowingReachesTheListeners) {
    show();
    Listener listener;
    dashboardManager()->addOrRemoveReactor(&listener, true);
    dashboard().ShowWindow(SW_HIDE);
    dashboard().ShowWindow(SW_SHOW);
    dashboard().SetWindowPos(0, 0, 300, 300, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(listener.told, (std::vector<BOOL>{0, 1}));
    dashboardManager()->addOrRemoveReactor(&listener, false);
}

TEST_F(DashboardTest, ShowsAndHidesThroughTheFrame) {
    show();
    EXPECT_EQ(dashboard().show(0), 1);
    EXPECT_EQ(dashboard().GetStyle() & WS_VISIBLE, 0U);
    EXPECT_EQ(dashboard().show(1), 1);
    EXPECT_NE(dashboard().GetStyle() & WS_VISIBLE, 0U);
    EXPECT_EQ(takeLines({"CFrameWnd::ShowControlBar"}),
              (Names{"CFrameWnd::ShowControlBar(object, 0, 0)",
                     "CFrameWnd::ShowControlBar(object, 1, 0)"}));
}

TEST_F(DashboardTest, WithoutAFrameShowsAndHidesNothing) {
    show();
    fail("vxedGetZorqFrame", 2);
    EXPECT_EQ(dashboard().show(0), 0);
    EXPECT_EQ(dashboard().show(1), 0);
    EXPECT_TRUE(hasVisibleStyle());
    EXPECT_EQ(callCount("CFrameWnd::ShowControlBar"), 0);
}

TEST_F(DashboardTest, FloatingInAFrameOfItsOwnShowsAndHidesToo) {
    show();
    frame().floatAt(dashboard(), {100, 100, 340, 500});
    EXPECT_EQ(dashboard().show(0), 1);
    EXPECT_FALSE(hasVisibleStyle());
    EXPECT_EQ(dashboard().show(1), 1);
    EXPECT_TRUE(hasVisibleStyle());
}

TEST_F(DashboardTest, IsToldToTheListenersOnceTheToolkitKnowsAndGivesItsAnswer) {
    show();
    Listener listener;
    dashboardManager()->addOrRemoveReactor(&listener, true);
    const support::AnswerInPlace toolkit(bench().windows(), dashboard().m_hWnd, WM_WINDOWPOSCHANGED,
                                         7);
    const auto change = [this](UINT flags) {
        const WINDOWPOS position{dashboard().m_hWnd, 0, 0, 0, 0, flags};
        return dashboard().SendMessage(WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&position));
    };
    EXPECT_EQ(change(0), 7);
    EXPECT_EQ(change(SWP_NOMOVE | SWP_NOZORDER), 7);
    EXPECT_TRUE(listener.told.empty());
    EXPECT_EQ(change(SWP_HIDEWINDOW), 7);
    EXPECT_EQ(change(SWP_SHOWWINDOW), 7);
    EXPECT_EQ(change(SWP_SHOWWINDOW | SWP_HIDEWINDOW), 7);
    EXPECT_EQ(listener.told, (std::vector<BOOL>{0, 1, 1}));
    dashboardManager()->addOrRemoveReactor(&listener, false);
}

/// A bar that floats without a frame around it, because the toolkit never placed it.
class FramelessBarTest : public DashboardTest {
protected:
    void showFrameless() {
        load();
        fail("CQrUiDockControlBar::RestoreControlBar");
        showLoaded();
        bench().toolkit().paletteSets().of(&dashboard()).place.floating = true;
        ASSERT_TRUE(dashboard().IsFloating());
        ASSERT_EQ(dashboard().GetDockingFrame(), nullptr);
        ASSERT_EQ(dynamic_cast<CDockBar*>(dashboard().GetParent()), nullptr);
    }
};

TEST_F(FramelessBarTest, IsLeftHiddenByTheShowStep) {
    showFrameless();
    dashboard().ShowWindow(SW_HIDE);
    dashboardManager()->onShowCommand();
    EXPECT_FALSE(hasVisibleStyle());
    EXPECT_EQ(callCount("CFrameWnd::ShowControlBar"), 0);
}

TEST_F(FramelessBarTest, IsLeftOnShowByTheHideStep) {
    showFrameless();
    ASSERT_TRUE(bench().editor().set(L"CleanScreenState", 1));
    EXPECT_TRUE(hasVisibleStyle());
    EXPECT_EQ(callCount("CFrameWnd::ShowControlBar"), 0);
}

TEST_F(FramelessBarTest, AnswersZeroToShowAndHide) {
    showFrameless();
    EXPECT_EQ(dashboard().show(1), 0);
    EXPECT_EQ(dashboard().show(0), 0);
    EXPECT_EQ(callCount("CFrameWnd::ShowControlBar"), 0);
}

TEST_F(FramelessBarTest, AsksForTheContentsHeightPlusThirteenAsItStandsInNoDockBar) {
    showFrameless();
    dashboard().resizeToContent({200, 120});
    EXPECT_NE(lastCall("QrUiResizeControlBarVerticalSize").find("[133]"), std::string::npos);
    EXPECT_EQ(callCount("CWnd::SetWindowPos"), 0);
}

TEST_F(DashboardTest, F1AnywhereInsideOpensTheTopicAndIsNotPassedOn) {
    show();
    for (CWnd* window : {static_cast<CWnd*>(&dashboard()), static_cast<CWnd*>(&panelSet())}) {
        forget();
        bench().windows().input(window->m_hWnd, WM_HELP, 0, 0);
        EXPECT_NE(lastCall("vxedHelp").find("[null,\"DASHBOARD\",0]"), std::string::npos);
        EXPECT_EQ(callCount("vxedHelp"), 1);
    }
    MSG key{dashboard().m_hWnd, WM_HELP, 0, 0};
    EXPECT_EQ(dashboard().PreTranslateMessage(&key), 1);
    MSG other{dashboard().m_hWnd, WM_KEYDOWN, VK_RETURN, 0};
    EXPECT_EQ(dashboard().PreTranslateMessage(&other), 0);
}

TEST_F(DashboardTest, TheHelpCommandOpensTheTopic) {
    show();
    dashboard().SendMessage(WM_COMMAND, 37330);
    EXPECT_NE(lastCall("vxedHelp").find("[null,\"DASHBOARD\",0]"), std::string::npos);
}

TEST_F(DashboardTest, PanelCommandsTogglePanels) {
    show();
    dashboard().SendMessage(WM_COMMAND, 53500);
    EXPECT_EQ(shown(), (Names{"MAIN/Draw", "OTHER/Draw", "MAIN/Spare"}));
}

TEST_F(DashboardTest, AnAnchoredBarIsNeverResizedByItsContent) {
    show();
    ASSERT_TRUE(frame().anchor(dashboard(), true));
    forget();
    dashboard().resizeToContent({200, 120});
    EXPECT_EQ(callCount("QrUiResizeControlBarVerticalSize"), 0);
    EXPECT_EQ(callCount("CWnd::SetWindowPos"), 0);
}

TEST_F(DashboardTest, AFloatingBarFollowsTheContentsHeightKeepingItsWidth) {
    show();
    frame().floatAt(dashboard(), {100, 100, 340, 500});
    const CRect before = dashboard().GetParentFrame()->GetWindowRect();
    forget();
    dashboard().resizeToContent({200, 120});
    const Names calls = takeLines({"CWnd::SetWindowPos", "QrUiResizeControlBarVerticalSize"});
    ASSERT_FALSE(calls.empty());
    EXPECT_EQ(Names{calls.front()}, Names{"CWnd::SetWindowPos(\"FloatingFrame\", 0, 0, " +
                                          std::to_string(before.Width()) + ", 120, 22)"});
    const CRect after = dashboard().GetParentFrame()->GetWindowRect();
    EXPECT_EQ(after.Width(), before.Width());
    EXPECT_EQ(after.Height(), 120);
    EXPECT_EQ(after.left, before.left);
    EXPECT_EQ(after.top, before.top);
}

TEST_F(DashboardTest, ADockedBarAsksForTheContentsHeightPlusThirteen) {
    show();
    dashboard().resizeToContent({200, 120});
    EXPECT_EQ(takeLines({"QrUiResizeControlBarVerticalSize"}),
              Names{"QrUiResizeControlBarVerticalSize(133)"});
    EXPECT_EQ(bench().toolkit().paletteSets().of(&dashboard()).dockedHeight, 133)
        << "it is asked for under the bar's own tool";
}

/// Lines that the toolkit has begun the context menu with, and what they look like before the
/// dashboard's own.
struct BegunMenu {
    std::vector<UINT> begun;
    Names kept;
};

class BegunMenuTest : public DashboardTest, public testing::WithParamInterface<BegunMenu> {};

TEST_P(BegunMenuTest, EndsWithOneSeparatorBeforeThePanels) {
    show();
    Names expected = GetParam().kept;
    expected.insert(expected.end(), {"Panels", "Help"});
    EXPECT_EQ(menuBehind(GetParam().begun), expected);
}

INSTANTIATE_TEST_SUITE_P(Menus, BegunMenuTest,
                         testing::Values(BegunMenu{{}, {}}, BegunMenu{{MF_STRING}, {"Begun", "-"}},
                                         BegunMenu{{MF_STRING, MF_SEPARATOR}, {"Begun", "-"}},
                                         BegunMenu{{MF_STRING, MF_SEPARATOR, MF_SEPARATOR},
                                                   {"Begun", "-"}},
                                         BegunMenu{{MF_SEPARATOR}, {}}));

TEST_F(DashboardTest, ItsLinesOfTheContextMenuHaveTheirCommands) {
    show();
    const std::vector<workbench::MenuLine> lines = menuOfDashboard();
    EXPECT_EQ(labels(lines), (Names{"Panels", "Help"}));
    EXPECT_EQ(lines[1].command, 37330U);
    std::vector<UINT> commands;
    for (const workbench::MenuLine& line : lines[0].children)
        commands.push_back(line.command);
    EXPECT_EQ(commands, (std::vector<UINT>{53500, 53501, 53502, 53503}));
}

TEST_F(DashboardTest, APanelsMenuThatCannotBeBuiltIsLeftOut) {
    show();
    CMenu menu;
    menu.CreatePopupMenu();
    fail("CMenu::CreatePopupMenu");
    EXPECT_EQ(dashboard().AddContextMenuItems(menu), 1);
    EXPECT_EQ(labels(bench().windows().menus().read(menu.m_hMenu)), Names{"Help"});
}

TEST_F(DashboardTest, ItsPlaceIsKeptInTheToolkitsStore) {
    show();
    const NodePtr node = makeNode();
    EXPECT_EQ(dashboard().Save(node.get()), 1);
    EXPECT_EQ(dashboard().Load(node.get()), 1);
    EXPECT_EQ(dashboard().Load(nullptr), 0);
    EXPECT_EQ(dashboard().Save(nullptr), 0);
}

TEST_F(DashboardTest, AStoreThatIsNoNodeIsRefusedBeforeTheToolkitSeesIt) {
    show();
    Stranger stranger;
    EXPECT_EQ(dashboard().Load(&stranger), 0);
    EXPECT_EQ(dashboard().Save(&stranger), 0);
    EXPECT_EQ(callCount("CQrUiPaletteSet::Load"), 0);
    EXPECT_EQ(callCount("CQrUiPaletteSet::Save"), 0);
}

TEST_F(DashboardTest, ARefusalOfTheToolkitIsItsAnswer) {
    show();
    const NodePtr node = makeNode();
    fail("CQrUiPaletteSet::Save");
    EXPECT_EQ(dashboard().Save(node.get()), 0);
    ASSERT_EQ(dashboard().Save(node.get()), 1);
    fail("CQrUiPaletteSet::Load");
    EXPECT_EQ(dashboard().Load(node.get()), 0);
    EXPECT_EQ(dashboard().Load(node.get()), 1);
}

TEST_F(DashboardTest, AnErrorOfTheStoreBecomesTheLastError) {
    show();
    const NodePtr node = makeNode();
    SetLastError(0);
    constexpr int kCode = 0x1234;
    bench().faults().fail("CQrUiPaletteSet::Save", kCode);
    EXPECT_EQ(dashboard().Save(node.get()), 0);
    EXPECT_EQ(GetLastError(), 0x1234U);
}

TEST_F(DashboardTest, AChangeOfTheThemeGoesToThePanelSet) {
    show();
    ProbeWindow probe(*panel(L"MAIN", L"Layers"));
    dashboard().ThemeModified(3);
    ASSERT_FALSE(probe.got.empty());
    EXPECT_EQ(probe.got.front(),
              (ProbeWindow::Message{1565, 0, reinterpret_cast<LPARAM>(dashboard().GetTheme())}));
}

TEST_F(DashboardTest, AChangeOfTheThemeReachesTheToolkitBeforeThePanelSet) {
    show();
    std::vector<HWND> repainted;
    bench().windows().changes().setObserver(
        [&repainted](HWND window) { repainted.push_back(window); });
    dashboard().ThemeModified(3);
    bench().windows().changes().setObserver(nullptr);
    ASSERT_FALSE(repainted.empty());
    EXPECT_EQ(repainted.front(), dashboard().m_hWnd);
}

TEST_F(DashboardTest, ABuildOfThePanelsEndsWithTheThemeForThePanelSetAndHasItsAnswer) {
    show();
    ASSERT_NE(dashboard().GetTheme(), nullptr);
    bench().windows().setName(panelSet().m_hWnd, "PanelSet");
    const Names theme{"1565(0, object)"};
    EXPECT_EQ(dashboard().loadPanels(), 1);
    EXPECT_EQ(support::messageLines(bench().journal().take(), "PanelSet", 1565), theme);
    ASSERT_EQ(panelSet().saveToProfile(), 1);
    fail("IXMLDOMNode::QueryInterface");
    forget();
    EXPECT_EQ(dashboard().loadPanels(), 0) << "what is saved could not be read";
    EXPECT_EQ(support::messageLines(bench().journal().take(), "PanelSet", 1565), theme);
}

TEST_F(DashboardTest, TheIdleUpdateReachesAControlWithoutItsArguments) {
    show();
    const support::WindowTap tap(bench().windows(), panelSet().controlWindows().at(0));
    dashboard().SendMessage(WM_IDLEUPDATECMDUI, 7, 9);
    EXPECT_EQ(tap.of(867), (support::TapMessages{{867, 0, 0}}));
}

TEST_F(DashboardTest, TheIdleUpdateGoesToTheControlsAndAnswersZero) {
    show();
    EXPECT_EQ(dashboard().SendMessage(WM_IDLEUPDATECMDUI, 1, 0), 0);
    int received = 0;
    for (const auto& record : bench().journal().take("message")) {
        if (toJsonLine(record).find("867") != std::string::npos)
            ++received;
    }
    EXPECT_EQ(received, 2);
}

}  // namespace
