#include "workbench/modules/VxExampleTools.qlx/dashboard_link.h"

#include "tests/workbench/modules/VxExampleTools.qlx/example_tools_fixture.h"

namespace workbench {

class DashboardLinkTest : public ExampleToolsTest {
protected:
    static constexpr const wchar_t* kFadeControl = L"ExampleFadeControl";

    void SetUp() override {
        bench.modules().environment().set("ENABLEDASHBOARD", "1");
        ASSERT_TRUE(bench.modules().loadModule(kDashboardModule)) << bench.modules().failureText();
        ExampleToolsTest::SetUp();
        bench.editor().type(L"DASHBOARDOLD\n");
    }
    void notifyDashboard(int code) {
        LibraryTable& libraries = bench.modules().libraries();
        reinterpret_cast<VxDaNotifyDashboardFn>(
            libraries.symbol(libraries.find(kDashboardModule), "VxDaNotifyDashboard"))(code);
    }
    std::wstring nameAfterClickOn(CQrUiToolPanelItem& button) {
        click(&button);
        return button.GetName();
    }
};

TEST_F(DashboardLinkTest, TheDashboardMakesItsControlOnTheModulesBehalf) {
    const HWND control = makeControl(kFadeControl);
    ASSERT_NE(control, nullptr);
    EXPECT_EQ(CWnd::FromHandle(control)->GetParent(), &panel);
    ASSERT_NE(sliderOf(control), nullptr);
    EXPECT_EQ(sliderOf(control)->GetSliderPos(), 50);
}

TEST_F(DashboardLinkTest, PanelsThatAreTakenDownHaveTheCounterBeginAnew) {
    CQrUiToolPanelItem& button = addButton(L"ID_ExampleCount");
    EXPECT_EQ(nameAfterClickOn(button), L"1 click");
    EXPECT_EQ(nameAfterClickOn(button), L"2 clicks");
    notifyDashboard(kDashboardUnload);
    EXPECT_EQ(nameAfterClickOn(button), L"1 click");
}

TEST_F(DashboardLinkTest, AModuleThatWentIsNotToldAnyMore) {
    ASSERT_TRUE(bench.modules().unloadModule(kModule));
    notifyDashboard(kDashboardUnload);
    EXPECT_TRUE(bench.modules().unloadModule(kDashboardModule));
}

TEST_F(ExampleToolsTest, WithoutTheDashboardThereIsNoControlOfItsOwn) {
    EXPECT_EQ(makeControl(L"ExampleFadeControl"), nullptr);
}

}  // namespace workbench
