#include "tests/workbench/loader/test_options.h"

#include "workbench/core/workbench.h"
#include "workbench/editor/editor.h"
#include "workbench/gestures/slider_gestures.h"
#include "workbench/loader/module_loader.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18.h>
#include <hostapi/vxdashboard.h>
#include <hostapi/window.h>
#include <hostapi/zorq/frame_windows.h>

#include <gtest/gtest.h>

namespace workbench {

/// The example module, and a tool panel such as the dashboard would give it.
class ExampleToolsModuleTest : public testing::Test {
protected:
    static constexpr const wchar_t* kModule = L"VxExampleTools.qlx";
    static constexpr const wchar_t* kControl = L"ExampleScaleControl";

    void SetUp() override {
        bench.editor().documents().create(L"Drawing1");
        ASSERT_TRUE(bench.modules().loadModule(kModule)) << bench.modules().failureText();
        const CRect rect{0, 0, 240, 40};
        ASSERT_NE(panel.Create(WS_CHILD | WS_VISIBLE, rect, vxedGetZorqFrame(), 1, 0), 0);
    }

    template <class Function>
    Function exported(const char* name) {
        LibraryTable& libraries = bench.modules().libraries();
        return reinterpret_cast<Function>(libraries.symbol(libraries.find(kModule), name));
    }
    HWND makeControl(const wchar_t* name = kControl) {
        return exported<VxDaGetCustomControlFn>("VxDaGetCustomControl")(name, panel.m_hWnd);
    }
    void click(CQrUiToolPanelItem* item) {
        exported<VxDaButtonClickedFn>("VxDaButtonClicked")(item);
    }
    CQrUiToolPanelItem& addButton(const wchar_t* id) {
        auto* item = new CQrUiToolPanelItem(&panel);  // the panel takes it over
        item->SetID(id);
        panel.AddToolPanelItem(item);
        return *item;
    }
    CQrUiProgSliderCtrl* sliderOf(HWND control) {
        for (HWND window : bench.windows().descendants(control)) {
            if (auto* slider = dynamic_cast<CQrUiProgSliderCtrl*>(CWnd::FromHandle(window)))
                return slider;
        }
        return nullptr;
    }
    /// What the dashboard sends to all controls when a variable has changed.
    void broadcastChange(HWND control, const wchar_t* variable) {
        SendMessage(control, 1727, 1, reinterpret_cast<LPARAM>(variable));
    }

    Workbench bench{testOptions()};
    CQrUiToolPanel panel;
};

TEST_F(ExampleToolsModuleTest, MakesItsControlInTheGivenPanel) {
    const HWND control = makeControl();
    ASSERT_NE(control, nullptr);
    EXPECT_EQ(CWnd::FromHandle(control)->GetParent(), &panel);
    ASSERT_NE(sliderOf(control), nullptr);
    EXPECT_EQ(sliderOf(control)->GetSliderPos(), 10);
}

TEST_F(ExampleToolsModuleTest, MakesNothingForAnotherNameOrADeadPanel) {
    EXPECT_EQ(makeControl(L"examplescalecontrol"), nullptr);
    EXPECT_EQ(makeControl(nullptr), nullptr);
    panel.DestroyWindow();
    EXPECT_EQ(makeControl(), nullptr);
}

TEST_F(ExampleToolsModuleTest, AGestureWritesTheVariable) {
    const HWND control = makeControl();
    panel.UpdateLayout(0);
    EXPECT_TRUE(gestures::dragSlider(sliderOf(control)->m_hWnd, {25}));
    gestures::releaseSlider(sliderOf(control)->m_hWnd);
    EXPECT_DOUBLE_EQ(bench.editor().read(L"LTSCALE").asReal(), 2.5);
}

TEST_F(ExampleToolsModuleTest, AChangeOfTheVariableMovesTheThumb) {
    const HWND control = makeControl();
    bench.editor().set(L"LTSCALE", 4.0);
    broadcastChange(control, L"CLAYER");
    EXPECT_EQ(sliderOf(control)->GetSliderPos(), 10);
    broadcastChange(control, L"LTSCALE");
    EXPECT_EQ(sliderOf(control)->GetSliderPos(), 40);
    bench.editor().set(L"LTSCALE", 500.0);
    broadcastChange(control, L"LTSCALE");
    EXPECT_EQ(sliderOf(control)->GetSliderPos(), 100);
}

TEST_F(ExampleToolsModuleTest, AnotherDrawingBringsItsOwnScale) {
    const HWND control = makeControl();
    bench.editor().set(L"LTSCALE", 4.0);
    bench.editor().documents().create(L"Drawing2");
    SendMessage(control, 1726, 0, 0);
    EXPECT_EQ(sliderOf(control)->GetSliderPos(), 10);
}

TEST_F(ExampleToolsModuleTest, ClicksAreCountedInTheToolsName) {
    CQrUiToolPanelItem& button = addButton(L"ID_ExampleCount");
    click(&button);
    EXPECT_EQ(button.GetName(), L"1 click");
    click(&button);
    EXPECT_EQ(button.GetName(), L"2 clicks");
}

TEST_F(ExampleToolsModuleTest, AnotherToolIsLeftAlone) {
    CQrUiToolPanelItem& button = addButton(L"ID_Other");
    button.SetName(L"Other");
    click(&button);
    click(nullptr);
    EXPECT_EQ(button.GetName(), L"Other");
}

TEST_F(ExampleToolsModuleTest, UnloadingTakesTheWindowsAlongAndTheNextLoadStartsFresh) {
    CQrUiToolPanelItem& button = addButton(L"ID_ExampleCount");
    click(&button);
    const HWND control = makeControl();
    EXPECT_TRUE(bench.modules().unloadModule(kModule));
    EXPECT_EQ(IsWindow(control), 0);
    EXPECT_TRUE(bench.modules().libraries().stillMapped().empty());

    ASSERT_TRUE(bench.modules().loadModule(kModule));
    click(&button);
    EXPECT_EQ(button.GetName(), L"1 click");
}

TEST_F(ExampleToolsModuleTest, AControlWhosePanelWentDoesNotDisturbTheNext) {
    makeControl();
    panel.DestroyWindow();
    const CRect rect{0, 0, 240, 40};
    ASSERT_NE(panel.Create(WS_CHILD | WS_VISIBLE, rect, vxedGetZorqFrame(), 1, 0), 0);
    EXPECT_NE(makeControl(), nullptr);
}

}  // namespace workbench
