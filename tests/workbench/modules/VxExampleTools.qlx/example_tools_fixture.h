#pragma once

#include "tests/workbench/host/test_options.h"
#include "workbench/editor/editor.h"
#include "workbench/loader/module_loader.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18.h>
#include <hostapi/vxdashboard.h>
#include <hostapi/window.h>
#include <hostapi/zorq/frame_windows.h>

#include <gtest/gtest.h>

namespace workbench {

/// The example module, and a tool panel such as the dashboard would give it.
class ExampleToolsTest : public testing::Test {
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

}  // namespace workbench
