#include "palette/no_panel_link.h"

#include "module/manager.h"
#include "module/module.h"
#include "tests/palette/palette_fixture.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/toolkit/link_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <algorithm>
#include <cstdint>

namespace {

using Lines = std::vector<std::string>;

constexpr std::int64_t kSetFont = 48;  // the framework's message that gives a window its font

class NoPanelLinkTest : public PaletteTest {
protected:
    CWnd* link() {
        for (const HWND window : bench().windows().descendants(panelSet().m_hWnd)) {
            if (bench().windows().find(window)->className == "CQrUiQuickStartLink") {
                return CWnd::FromHandle(window);
            }
        }
        return nullptr;
    }
    bool isLinkOnShow() { return link() != nullptr && (link()->GetStyle() & WS_VISIBLE) != 0; }
    /// Gives the theme's element for links a font.
    void setLinkFont(const LOGFONT& font) {
        bench().toolkit().themes().find(L"ToolPanel")->setFont(2, font);
    }
    void hideAllPanels() { panelSet().refreshPanels(0); }
    void moveMouse(UINT x, UINT y) {
        panelSet().SendMessage(WM_MOUSEMOVE, 0, static_cast<LPARAM>(MAKELONG(x, y)));
    }
};

TEST_F(NoPanelLinkTest, IsNotOnShowWhilePanelsAre) {
    show();
    EXPECT_FALSE(isLinkOnShow());
}

TEST_F(NoPanelLinkTest, ComesUpWhenTheLastPanelIsHiddenByItsMenu) {
    show();
    for (const auto& [group, id] : {std::pair{L"MAIN", L"Layers"},
                                    {L"MAIN", L"Draw"},
                                    {L"OTHER", L"Draw"},
                                    {L"MAIN", L"Spare"}}) {
        EXPECT_FALSE(isLinkOnShow());
        panel(group, id)->SendMessage(WM_COMMAND, 37331);
    }
    EXPECT_TRUE(isLinkOnShow());
    EXPECT_EQ(link()->GetWindowText(), L"Learn about the dashboard");
    EXPECT_EQ(link()->GetWindowRect().Height(), 20);
}

TEST_F(NoPanelLinkTest, GoesWhenAPanelIsShownAndComesBack) {
    show();
    hideAllPanels();
    const CWnd* first = link();
    panelSet().togglePanel(53500);
    EXPECT_FALSE(isLinkOnShow());
    panelSet().togglePanel(53500);
    EXPECT_TRUE(isLinkOnShow());
    EXPECT_EQ(link(), first);
}

TEST_F(NoPanelLinkTest, IsMadeTiedToItsTopicGivenItsFontPlacedAndShownInThisOrder) {
    setLinkFont({L"Wide", 17, 600, false});
    load();
    forget();
    dashboardManager()->showDashboard();
    Lines made = takeLines();
    made.erase(made.begin(), std::find(made.begin(), made.end(), "LoadString(208)"));
    made.resize(8);
    EXPECT_EQ(made, (Lines{"LoadString(208)", "AfxSetResourceHandle(\"\")",
                           "CQrUiQuickStartLink::Create(\"Learn about the dashboard\", 1342177536, "
                           "object)",
                           "CQrUiTheme::GetFont(2)", "CFont::CreateFontIndirect(\"Wide\", 17, 600)",
                           "CWnd::MoveWindow(\"CQrUiQuickStartLink\", 0, 0, 235, 20)",
                           "CWnd::SetWindowPos(\"CQrUiQuickStartLink\", 0, 0, 179, 20, 22)",
                           "CWnd::ShowWindow(\"CQrUiQuickStartLink\", 5)"}));
}

TEST_F(NoPanelLinkTest, BeginsInASmallRectangleAndTakesItsFontAtOnce) {
    load();
    std::vector<CRect> rects;
    std::vector<std::wstring> topics;
    const auto watch = bench().journal().addListener([&](const workbench::JournalRecord& record) {
        if (record.field("name") != workbench::Value("CFont::CreateFontIndirect"))
            return;
        const workbench::Window& window = *bench().windows().find(link()->m_hWnd);
        rects.push_back(window.rect);
        topics.push_back(static_cast<workbench::LinkWidget&>(*window.widget).topic());
        bench().windows().setName(link()->m_hWnd, "link");
    });
    dashboardManager()->showDashboard();
    EXPECT_EQ(rects, (std::vector<CRect>{{0, 0, 50, 20}}));
    EXPECT_EQ(topics, std::vector<std::wstring>{L"LEARNDASHBOARD"});
    std::vector<workbench::Value> redraws;
    for (const workbench::JournalRecord& record : bench().journal().take("message")) {
        if (record.field("control") == "link" &&
            record.field("number") == workbench::Value(kSetFont))
            redraws.push_back(record.field("lparam"));
    }
    EXPECT_EQ(redraws, std::vector<workbench::Value>{1});
}

TEST_F(NoPanelLinkTest, HasTheThemesFontForLinks) {
    setLinkFont({L"Wide", 17, 600, false});
    show();
    hideAllPanels();
    const LOGFONT* font =
        bench().windows().gdi().findFont(bench().windows().find(link()->m_hWnd)->font);
    ASSERT_NE(font, nullptr);
    EXPECT_EQ(font->faceName, L"Wide");
    EXPECT_EQ(font->height, 17);
}

TEST_F(NoPanelLinkTest, OfAThemeWithoutAFontForLinksKeepsTheSystems) {
    load();
    fail("CQrUiTheme::GetFont");
    showLoaded();
    hideAllPanels();
    EXPECT_TRUE(isLinkOnShow());
    EXPECT_EQ(bench().windows().find(link()->m_hWnd)->font, 0U);
    EXPECT_EQ(bench().windows().gdi().fontCount(), 1U) << "that of the controls alone";
}

TEST_F(NoPanelLinkTest, OfAPanelSetWithoutAThemeKeepsTheSystemsFont) {
    show();
    CQrUiPanelSet plain;
    ASSERT_NE(plain.Create(WS_CHILD | WS_VISIBLE, {0, 0, 200, 300}, &dashboard(), 2), 0);
    VxDaNoPanelLink lone;
    forget();
    lone.show(plain);
    EXPECT_TRUE(lone.isOnShow());
    EXPECT_EQ(callCount("CFont::CreateFontIndirect"), 0);
}

TEST_F(NoPanelLinkTest, IsHiddenOnceAndShownOnce) {
    show();
    panelSet().UpdateLayout();
    EXPECT_EQ(takeLines({"CWnd::ShowWindow"}), Lines{});
    hideAllPanels();
    const Lines shownLink{"CWnd::ShowWindow(\"CQrUiQuickStartLink\", 5)"};
    Lines calls = takeLines({"CWnd::ShowWindow"});
    EXPECT_EQ(Lines(calls.end() - 1, calls.end()), shownLink);
    panelSet().togglePanel(53500);
    EXPECT_EQ(
        takeLines({"CWnd::ShowWindow"}),
        (Lines{"CWnd::ShowWindow(\"Layers\", 5)", "CWnd::ShowWindow(\"CQrUiQuickStartLink\", 0)"}));
}

TEST_F(NoPanelLinkTest, HasNoPlaceBeforeItIsMade) {
    show();
    const VxDaNoPanelLink lone;
    EXPECT_EQ(lone.rectIn(panelSet()), CRect());
    EXPECT_FALSE(lone.isOnShow());
}

TEST_F(NoPanelLinkTest, AClickOnItOpensItsOwnTopic) {
    show();
    hideAllPanels();
    forget();
    ASSERT_NE(link(), nullptr);
    workbench::gestures::clickAt(bench().toolkit(), link()->m_hWnd, {5, 5});
    settle();
    EXPECT_EQ(callCount("vxedHelp"), 1);
    EXPECT_NE(lastCall("vxedHelp").find("[null,\"LEARNDASHBOARD\",0]"), std::string::npos);
}

TEST_F(NoPanelLinkTest, AMouseMoveOutsideOfItSetsTheArrow) {
    show();
    hideAllPanels();
    forget();
    moveMouse(2, 2);
    EXPECT_EQ(callCount("SetArrowCursor"), 0);
    moveMouse(2, 60);
    EXPECT_EQ(callCount("SetArrowCursor"), 1);
    moveMouse(0xffff, 2);
    EXPECT_EQ(callCount("SetArrowCursor"), 2);
    moveMouse(2, 0xffff);
    EXPECT_EQ(callCount("SetArrowCursor"), 3);
    moveMouse(178, 19);
    EXPECT_EQ(callCount("SetArrowCursor"), 3) << "its last pixel";
    moveMouse(179, 19);
    EXPECT_EQ(callCount("SetArrowCursor"), 4);
    moveMouse(178, 20);
    EXPECT_EQ(callCount("SetArrowCursor"), 5);
}

TEST_F(NoPanelLinkTest, WhilePanelsAreOnShowAMouseMoveSetsNoCursor) {
    show();
    moveMouse(2, 60);
    EXPECT_EQ(callCount("SetArrowCursor"), 0);
}

TEST_F(NoPanelLinkTest, StandsAtTheTopAgainAfterASizeMessage) {
    show();
    hideAllPanels();
    link()->MoveWindow({7, 9, 30, 30});
    forget();
    panelSet().SendMessage(WM_SIZE);
    EXPECT_EQ(takeLines(),
              (Lines{"CWnd::MoveWindow(\"CQrUiQuickStartLink\", 0, 0, " +
                         std::to_string(panelSet().GetClientRect().Width()) + ", 20)",
                     "CWnd::SetWindowPos(\"CQrUiQuickStartLink\", 0, 0, 179, 20, 22)"}));
    const CRect rect = link()->GetWindowRect();
    EXPECT_EQ(panelSet().ScreenToClient({rect.left, rect.top}), (CPoint{0, 0}));
}

TEST_F(NoPanelLinkTest, ThatCannotBeMadeIsTriedAgain) {
    fail("CQrUiQuickStartLink::Create", 100);
    show();
    hideAllPanels();
    EXPECT_EQ(link(), nullptr);
    bench().faults().unfail("CQrUiQuickStartLink::Create");
    panelSet().UpdateLayout();
    EXPECT_TRUE(isLinkOnShow());
}

}  // namespace
