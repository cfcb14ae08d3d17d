#include "tests/palette/dashboard_fixture.h"
#include "tests/support/call_lines.h"
#include "tests/support/window_tap.h"

namespace {

using Names = std::vector<std::string>;

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
