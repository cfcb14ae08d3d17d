#include "palette/palette.h"

#include "module/manager.h"
#include "module/module.h"
#include "tests/palette/palette_fixture.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/messages.h>

namespace {

/// A control's list that is open, and needs the focus.
class OpenList final : public workbench::Widget {
public:
    bool handle(workbench::Window& /*window*/, UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/,
                LRESULT& answer) override {
        if (message != WM_QRUI_KEEP_FOCUS)
            return false;
        answer = 1;
        return true;
    }
};

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
    workbench::Window* control = bench().windows().find(panelSet().controlWindows().at(1));
    std::unique_ptr<workbench::Widget> other = std::make_unique<OpenList>();
    control->widget.swap(other);
    EXPECT_FALSE(palette().CanFrameworkTakeFocus());
    control->widget.swap(other);
    EXPECT_TRUE(palette().CanFrameworkTakeFocus());
}

TEST_F(PaletteWindowTest, TheReportedSizeGoesToTheBar) {
    show();
    palette().SendMessage(WM_QRUI_POSITION, MAKELONG(200, 120));
    EXPECT_NE(lastCall("QrUiResizeControlBarVerticalSize").find("133"), std::string::npos);
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
    EXPECT_EQ(bench().toolkit().panels().size(), 0U);
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
