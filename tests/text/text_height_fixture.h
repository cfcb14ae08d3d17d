#pragma once

#include "tests/support/control_bench.h"
#include "workbench/base/text.h"
#include "workbench/drawing/path_access.h"
#include "workbench/editor/editor.h"
#include "workbench/gestures/list_gestures.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/toolkit/combo_widget.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/combo.h>

#include <string>
#include <vector>

inline constexpr const char* kTextHeightControl = "TextHeightComboControl";

/// Test fixture: two lists of text heights on one panel, and a user's verbs for them. A new drawing has
/// a height of 2.5, shown with four decimals.
class TextHeightTest : public support::ControlBench {
protected:
    using Texts = std::vector<std::wstring>;

    void SetUp() override {
        useMenuOf(kTextHeightControl, 2);
        showControl(kTextHeightControl);
    }

    HWND second() { return control(kTextHeightControl, 2); }
    static CQrUiComboCtrl& listOf(HWND combo) {
        return *dynamic_cast<CQrUiComboCtrl*>(CWnd::FromHandle(combo));
    }
    Texts entries(HWND combo = nullptr) {
        const CQrUiComboCtrl& list = listOf(combo == nullptr ? window() : combo);
        Texts all;
        for (int i = 0; i < list.GetCount(); ++i)
            all.push_back(list.GetItem(i)->text);
        return all;
    }
    int selected(HWND combo = nullptr) {
        return listOf(combo == nullptr ? window() : combo).GetCurSel();
    }
    void pick(int index) {
        workbench::gestures::chooseFromList(bench().toolkit(), window(), index);
        settle();
    }
    /// Whether a click opens the list; it is closed again.
    bool opensByClick() {
        workbench::gestures::clickAt(bench().toolkit(), window(), {5, 5});
        settle();
        const bool open = bench()
                              .windows()
                              .widgetOf<workbench::ComboWidget>(CWnd::FromHandle(window()))
                              ->isOpen();
        if (open)
            workbench::gestures::closeList(bench().toolkit(), window());
        return open;
    }
    void addStyle(const std::string& name, double height) {
        setDb("textstyles." + name, workbench::Value::Table{{"height", height}});
    }
    /// Lets this control alone hear of a variable.
    void tellOf(const wchar_t* variable) { send(1727, 1, reinterpret_cast<LPARAM>(variable)); }
    void tellCommandEnded(const wchar_t* command) {
        send(1730, 0, reinterpret_cast<LPARAM>(command));
    }
    double height() { return var(L"TEXTSIZE").asReal(); }
    LPARAM document(const std::wstring& name) {
        return reinterpret_cast<LPARAM>(bench().editor().documents().find(name));
    }
};
