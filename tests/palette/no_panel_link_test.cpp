#include "palette/no_panel_link.h"

#include "tests/palette/palette_fixture.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/windows/window_system.h"

namespace {

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

TEST_F(NoPanelLinkTest, HasTheThemesFont) {
    show();
    hideAllPanels();
    EXPECT_NE(bench().windows().find(link()->m_hWnd)->font, 0U);
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
    panelSet().SendMessage(WM_SIZE);
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
