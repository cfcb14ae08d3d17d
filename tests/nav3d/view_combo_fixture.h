#pragma once

#include "tests/nav3d/nav_fixture.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/combo.h>

#include <algorithm>
#include <string>
#include <vector>

/// Notices of the list, and its ID.
constexpr UINT kSelEndOk = 9;
constexpr UINT kDropDown = 7;
constexpr UINT kCloseUp = 8;
constexpr UINT kComboId = 5007;

/// Test fixture: the list of views, and a user's verbs for it.
class ViewComboTest : public NavControlTest {
protected:
    void SetUp() override {
        showControl("3DNavViewComboCtrl");
        rebuild();
        takeJournal();
    }

    void rebuild() { announce(L"CVPORT"); }
    CQrUiComboCtrl& combo() {
        return *dynamic_cast<CQrUiComboCtrl*>(CWnd::FromHandle(part(window(), "combo")));
    }
    /// The entries' texts, "-" for a separator.
    std::vector<std::wstring> entries() {
        std::vector<std::wstring> all;
        for (int i = 0; i < combo().GetCount(); ++i)
            all.push_back(combo().GetItem(i)->separator ? L"-" : combo().GetItem(i)->text);
        return all;
    }
    std::wstring selected() {
        const QRUI_COMBO_CTRL_ITEM* entry = combo().GetItem(combo().GetCurSel());
        return entry == nullptr ? L"" : entry->text;
    }
    void notify(UINT code) {
        send(WM_COMMAND, code << 16 | kComboId, reinterpret_cast<LPARAM>(combo().m_hWnd));
    }
    /// Opens the list, chooses an entry of a text and closes it.
    void choose(const std::wstring& text) {
        notify(kDropDown);
        const auto all = entries();
        const auto found = std::find(all.begin(), all.end(), text);
        ASSERT_NE(found, all.end());
        combo().SetCurSel(static_cast<int>(found - all.begin()));
        notify(kSelEndOk);
        notify(kCloseUp);
    }
    /// Moves the view from outside.
    void moveView() {
        setDb("viewports.current.eye", workbench::Value::List{7.0, 8.0, 9.0});
        settle();
    }
    bool wasRebuilt() { return takeCount("CQrUiComboCtrl::ResetContent") != 0; }
    /// Shows another entry as selected, with nobody told.
    void select(const std::wstring& text) {
        const auto all = entries();
        const auto found = std::find(all.begin(), all.end(), text);
        ASSERT_NE(found, all.end());
        combo().SetCurSel(static_cast<int>(found - all.begin()));
        takeJournal();
    }
    bool isListed(const std::wstring& text) {
        const auto all = entries();
        return std::find(all.begin(), all.end(), text) != all.end();
    }
    void restore(const std::wstring& name) { type(L"-VIEW\nR\n" + name + L"\n"); }
    void hideDashboard() {
        paletteSet()->ShowWindow(SW_HIDE);
        takeJournal();
    }
    /// Clicks the back button whether it is on show or not.
    void clickBack() {
        dynamic_cast<CQrUiToolPanel*>(CWnd::FromHandle(window()))->OnLButtonClicked(0, {});
    }
    bool backDisabled() {
        return workbench::viewOf(bench().toolkit(), *item(L"TPB_3DNAV_COMBO")).disabled;
    }
};

/// The entries of a list that begins so, with the presets and the two commands behind.
inline std::vector<std::wstring> withPresets(std::vector<std::wstring> first) {
    for (const wchar_t* text :
         {L"Top", L"Bottom", L"Front", L"Back", L"Left", L"Right", L"SW Isometric", L"SE Isometric",
          L"NE Isometric", L"NW Isometric", L"-", L"New View...", L"View Manager..."})
        first.push_back(text);
    return first;
}
