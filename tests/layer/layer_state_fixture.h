#pragma once

#include "tests/support/control_bench.h"
#include "workbench/base/text.h"
#include "workbench/drawing/layer_state_operations.h"
#include "workbench/editor/editor.h"
#include "workbench/gestures/list_gestures.h"

#include <hostapi/qrui18/combo.h>

#include <string>
#include <vector>

inline constexpr const char* kLayerStateControl = "LayerStateComboControl";

/// Test fixture: two layer state lists on one panel, and a user's verbs for them. The drawing has the
/// layers 0 and Walls and no saved state.
class LayerStateTest : public support::ControlBench {
protected:
    using Texts = std::vector<std::wstring>;
    using Calls = std::vector<std::string>;

    void SetUp() override {
        useMenuOf(kLayerStateControl, 2);
        showControl(kLayerStateControl);
        setDb("layers.Walls", workbench::Value::Table{});
        takeJournal();
    }

    HWND second() { return control(kLayerStateControl, 2); }
    static CQrUiComboCtrl& listOf(HWND combo) {
        return *dynamic_cast<CQrUiComboCtrl*>(CWnd::FromHandle(combo));
    }
    /// The rows' texts, "-" for a separator.
    Texts rows(HWND combo = nullptr) {
        const CQrUiComboCtrl& list = listOf(combo == nullptr ? window() : combo);
        Texts all;
        for (int i = 0; i < list.GetCount(); ++i)
            all.push_back(list.GetItem(i)->separator ? L"-" : list.GetItem(i)->text);
        return all;
    }
    int selected(HWND combo = nullptr) {
        return listOf(combo == nullptr ? window() : combo).GetCurSel();
    }
    /// Saves the layers as they are, and lets the lists know.
    void saveState(const std::string& name) {
        using namespace workbench::drawing;
        Database& data = bench().editor().documents().current()->data();
        ASSERT_EQ(saveLayerState(data, name, "", {}).status, Status::Ok);
        rebuild();
    }
    void rebuild() {
        send(1730, 0, reinterpret_cast<LPARAM>(L"LAYERSTATE"));
        SendMessage(second(), 1730, 0, reinterpret_cast<LPARAM>(L"LAYERSTATE"));
        takeJournal();
    }
    void pick(int row) {
        workbench::gestures::chooseFromList(bench().toolkit(), window(), row);
        settle();
    }
    void answer(const std::string& kind, const workbench::Value& value) {
        bench().answers().queue(kind, value);
    }
    void setWallsOn(bool on) { setDb("layers.Walls.on", on); }
    bool wallsOn() { return db("layers.Walls.on").asBool(); }
    LPARAM document(const std::wstring& name) {
        return reinterpret_cast<LPARAM>(bench().editor().documents().find(name));
    }
    static Texts withStates(const Texts& states) {
        Texts all{L"Unsaved Layer State", L"-"};
        for (const std::wstring& state : states)
            all.push_back(state);
        if (!states.empty())
            all.push_back(L"-");
        all.push_back(L"Save Layer State...");
        all.push_back(L"Manage Layer States...");
        return all;
    }
};
