#include "palette/palette.h"

#include "module/manager.h"
#include "module/module.h"
#include "tests/palette/palette_fixture.h"
#include "tests/support/answer_in_place.h"
#include "tests/support/window_tap.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/messages.h>
#include <hostapi/window/frame.h>

namespace {

using Lines = std::vector<std::string>;

class PaletteWindowTest : public PaletteTest {
protected:
    CVxDaPalette& palette() { return *dashboard().palette(); }
    void hideAllPanels() { panelSet().refreshPanels(0); }
    void floatBar() { bench().toolkit().frame().floatAt(dashboard(), {100, 100, 340, 500}); }
    int contentHeight() { return panelSet().GetWindowRect().Height(); }
    /// The panels that the panel set knows, as its menu lists them.
    std::vector<std::string> panelLines() { return labels(popup(menuOfDashboard(), L"Panels")); }
    int leastWidth() {
        CSize least{panelSet().GetWindowRect().Width(), contentHeight()};
        panelSet().GetMinimumSize(least);
        return least.cx;
    }
};

TEST_F(PaletteWindowTest, ThePanelSetFillsItAfterASizeMessage) {
    show();
    palette().MoveWindow({0, 0, 200, 300});
    const CRect rect = panelSet().GetWindowRect();
    const CRect around = palette().GetWindowRect();
    EXPECT_EQ(rect.left, around.left);
    EXPECT_EQ(rect.top, around.top);
    EXPECT_EQ(rect.Width(), 200);
    EXPECT_EQ(panelSet().GetDlgCtrlID(), 1);
}

TEST_F(PaletteWindowTest, WithNoPanelOnShowTheLeastSizeIsNothing) {
    show();
    hideAllPanels();
    CSize size{5, 5};
    EXPECT_FALSE(palette().GetMinimumSize(size));
    EXPECT_EQ(size, (CSize{0, 0}));
}

TEST_F(PaletteWindowTest, DockedTheLeastSizeIsThatOfThePanelSet) {
    show();
    CSize size;
    EXPECT_TRUE(palette().GetMinimumSize(size));
    EXPECT_EQ(size, (CSize{leastWidth(), contentHeight()}));
}

TEST_F(PaletteWindowTest, FloatingTheLeastWidthGrowsByTheSizingFrame) {
    show();
    floatBar();
    CSize size;
    EXPECT_TRUE(palette().GetMinimumSize(size));
    EXPECT_EQ(size, (CSize{leastWidth() + GetSystemMetrics(SM_CXSIZEFRAME), contentHeight()}));
}

TEST_F(PaletteWindowTest, DockedTheLargestSizeIsTheContentsHeight) {
    show();
    CSize size;
    EXPECT_TRUE(palette().GetMaximumSize(size));
    EXPECT_EQ(size, (CSize{-1, contentHeight()}));
}

TEST_F(PaletteWindowTest, FloatingTheLargestHeightGrowsByTheNonClientArea) {
    show();
    floatBar();
    CSize size;
    EXPECT_TRUE(palette().GetMaximumSize(size));
    EXPECT_EQ(size, (CSize{-1, contentHeight() + dashboard().GetNonClientSize().cy}));
}

TEST_F(PaletteWindowTest, AnchoredTheLargestSizeIsLeftToTheToolkit) {
    show();
    ASSERT_TRUE(bench().toolkit().frame().anchor(dashboard(), true));
    CSize size{5, 5};
    EXPECT_FALSE(palette().GetMaximumSize(size));
    EXPECT_EQ(size, (CSize{5, 5}));
}

TEST_F(PaletteWindowTest, WithNoPanelOnShowTheLargestSizeIsLeftToTheToolkit) {
    show();
    hideAllPanels();
    CSize size{5, 5};
    EXPECT_FALSE(palette().GetMaximumSize(size));
    EXPECT_EQ(size, (CSize{-1, 5}));
}

TEST_F(PaletteWindowTest, AControlKeepsTheFocusFromTheFrameworkAsLongAsItNeedsIt) {
    show();
    EXPECT_TRUE(palette().CanFrameworkTakeFocus());
    {
        const support::AnswerInPlace list(bench().windows(), panelSet().controlWindows().at(1),
                                          WM_QRUI_KEEP_FOCUS, 2);
        EXPECT_FALSE(palette().CanFrameworkTakeFocus());
    }
    EXPECT_TRUE(palette().CanFrameworkTakeFocus());
}

TEST_F(PaletteWindowTest, ControlsAreAskedInOrderUntilOneNeedsTheFocus) {
    show();
    const support::WindowTap first(bench().windows(), panelSet().controlWindows().at(0));
    const support::WindowTap second(bench().windows(), panelSet().controlWindows().at(1));
    palette().CanFrameworkTakeFocus();
    const support::TapMessages question{{WM_QRUI_KEEP_FOCUS, 0, 0}};
    EXPECT_EQ(first.of(WM_QRUI_KEEP_FOCUS), question);
    EXPECT_EQ(second.of(WM_QRUI_KEEP_FOCUS), question);
    const support::AnswerInPlace list(bench().windows(), panelSet().controlWindows().at(0),
                                      WM_QRUI_KEEP_FOCUS, 1);
    EXPECT_FALSE(palette().CanFrameworkTakeFocus());
    EXPECT_EQ(first.of(WM_QRUI_KEEP_FOCUS).size(), 2U);
    EXPECT_EQ(second.of(WM_QRUI_KEEP_FOCUS), question) << "the answer was known before its turn";
}

TEST_F(PaletteWindowTest, TheReportedSizeGoesToTheBar) {
    show();
    EXPECT_EQ(palette().SendMessage(WM_QRUI_POSITION, MAKELONG(200, 120)), 0);
    EXPECT_EQ(takeLines({"QrUiResizeControlBarVerticalSize"}),
              Lines{"QrUiResizeControlBarVerticalSize(133)"});
}

TEST_F(PaletteWindowTest, InAPaletteSetOfAnotherKindTheReportedSizeGoesNowhere) {
    show();
    CQrUiPaletteSet other(0);
    ASSERT_NE(other.Create(L"Other", 0, {0, 0, 200, 300}, AfxGetMainWnd(), 0), 0);
    auto* lone = new CVxDaPalette;
    ASSERT_NE(lone->Create(&other), 0);
    other.AddPalette(lone);  // which takes it over
    forget();
    EXPECT_EQ(lone->SendMessage(WM_QRUI_POSITION, MAKELONG(200, 120)), 0);
    EXPECT_EQ(takeLines(), Lines{});
}

TEST_F(PaletteWindowTest, ASizeMessageHasTheToolkitsAnswer) {
    show();
    const support::AnswerInPlace toolkit(bench().windows(), palette().m_hWnd, WM_SIZE, 7);
    EXPECT_EQ(palette().SendMessage(WM_SIZE), 7);
}

TEST_F(PaletteWindowTest, WithoutAPanelSetsWindowASizeMessageMovesNothing) {
    show();
    panelSet().DestroyWindow();
    forget();
    palette().MoveWindow({0, 0, 200, 300});
    EXPECT_EQ(takeLines(), Lines{"CWnd::MoveWindow(\"CQrUiPalette\", 0, 0, 200, 300)"});
}

TEST_F(PaletteWindowTest, ThePanelSetBeginsAtThePalettesPlaceOnTheScreen) {
    load();
    std::vector<CRect> places;
    const auto watch = bench().journal().addListener([&](const workbench::JournalRecord& record) {
        if (record.field("name") == workbench::Value("CQrUiPaletteSet::AddPalette")) {
            places.push_back(bench().windows().find(panelSet().m_hWnd)->rect);
            places.push_back(palette().GetWindowRect());
        }
    });
    dashboardManager()->showDashboard();
    ASSERT_EQ(places.size(), 2U);
    EXPECT_EQ(places[0], places[1]);
    EXPECT_NE(places[0], CRect());
}

TEST_F(PaletteWindowTest, AReplacedPanelSetIsEmptyAndTheOldOnesWindowsAreGone) {
    show();
    const HWND old = panelSet().m_hWnd;
    const HWND control = panelSet().controlWindows().at(0);
    palette().replacePanelSet();
    EXPECT_FALSE(IsWindow(old));
    EXPECT_FALSE(IsWindow(control));
    EXPECT_TRUE(IsWindow(panelSet().m_hWnd));
    EXPECT_EQ(panelSet().GetPanelCount(), 0);
    EXPECT_TRUE(panelSet().controlWindows().empty());
    EXPECT_EQ(panelSet().findToolPanelItems(L"ID_Line"), nullptr);
    EXPECT_EQ(panelSet().GetTheme(), dashboard().GetTheme());
    EXPECT_NE(panelSet().GetTheme(), nullptr);
    EXPECT_EQ(bench().toolkit().panels().size(), 0U);
}

TEST_F(PaletteWindowTest, AReplacedPanelSetFillsThePalette) {
    show();
    forget();
    palette().replacePanelSet();
    EXPECT_EQ(takeLines({"CQrUiPanelSet::Create"}),
              Lines{"CQrUiPanelSet::Create(1342177280, object, 1)"});
    EXPECT_EQ(bench().windows().find(panelSet().m_hWnd)->rect, palette().GetClientRect());
    EXPECT_EQ(panelSet().GetParent(), &palette());
}

TEST_F(PaletteWindowTest, AReplacementInsideAReplacementChangesNothing) {
    show();
    bool asked = false;
    forget();
    const auto watch = bench().journal().addListener([&](const workbench::JournalRecord& record) {
        if (record.field("name") != workbench::Value("CWnd::DestroyWindow") || asked)
            return;
        asked = true;
        palette().replacePanelSet();
    });
    palette().replacePanelSet();
    EXPECT_TRUE(asked);
    EXPECT_EQ(takeLines({"CQrUiPanelSet::Create"}),
              Lines{"CQrUiPanelSet::Create(1342177280, object, 1)"});
    EXPECT_TRUE(IsWindow(panelSet().m_hWnd));
}

TEST_F(PaletteWindowTest, WithoutAWindowTheReplacedPanelSetHasNoneEither) {
    fail("QrUiGetThemeManager", 100);
    load();
    dashboardManager()->showDashboard();
    ASSERT_EQ(palette().m_hWnd, nullptr);
    ASSERT_FALSE(panelLines().empty());
    palette().replacePanelSet();
    EXPECT_EQ(panelSet().m_hWnd, nullptr);
    EXPECT_EQ(panelLines(), std::vector<std::string>{});
}

}  // namespace
