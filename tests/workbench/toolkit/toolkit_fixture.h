#pragma once

#include "workbench/host/workbench.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace workbench {

/// A message as a window of a test received it.
struct Received {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    friend bool operator==(const Received&, const Received&) = default;
};

/// A window object that keeps the messages of one kind that it gets.
template <class Base>
class Listening : public Base {
public:
    using Base::Base;

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        received.push_back({message, wParam, lParam});
        const auto answer = answers.find(message);
        return answer == answers.end() ? Base::WindowProc(message, wParam, lParam)
                                       : answer->second(wParam, lParam);
    }
    /// The messages with a number, in order.
    std::vector<Received> of(UINT message) const {
        std::vector<Received> found;
        for (const Received& each : received) {
            if (each.message == message)
                found.push_back(each);
        }
        return found;
    }

    std::vector<Received> received;
    std::map<UINT, std::function<LRESULT(WPARAM, LPARAM)>> answers;
};

class ListeningPalette final : public Listening<CQrUiPalette> {
public:
    bool CanFrameworkTakeFocus() override { return releasesFocus; }
    bool GetMinimumSize(CSize& size) override {
        size = minimum;
        return minimum != CSize{};
    }
    bool GetMaximumSize(CSize& size) override {
        size = maximum;
        return maximum != CSize{};
    }

    bool releasesFocus = true;
    CSize minimum;
    CSize maximum;
};

/// A custom control as the host's modules make them: a tool panel within a tool panel.
class ListeningToolPanel final : public Listening<CQrUiToolPanel> {
public:
    ListeningToolPanel() {
        for (const UINT query : {WM_QRUI_HAS_ICON, WM_QRUI_ROW_QUERY})
            answers[query] = [](WPARAM, LPARAM) { return LRESULT{1}; };
    }
    void OnLButtonClicked(UINT flags, CPoint point) override {
        clicks.push_back(point);
        if (onClick)
            onClick();
        CQrUiToolPanel::OnLButtonClicked(flags, point);
    }
    BOOL UpdateLayout(BOOL invalidate) override {
        ++layouts;
        return CQrUiToolPanel::UpdateLayout(invalidate);
    }

    std::vector<CPoint> clicks;
    std::function<void()> onClick;
    int layouts = 0;
};

/// A workbench with a palette set that is docked at the right and on show, with a palette, a panel
/// set, one panel and one tool panel in it.
class ToolkitTest : public testing::Test {
protected:
    ToolkitTest() {
        m_set = std::make_unique<Listening<CQrUiPaletteSet>>(0U);
        m_set->SetToolID(kTool);
        m_set->Create(L"Test set", 0, {50, 50, 285, 350}, &frame().frame(), 0);
        m_set->EnableDocking(0x5000);
        m_set->RestoreControlBar(kRightDockBar, {50, 50, 285, 350});
        m_palette = new ListeningPalette;
        m_palette->Create(m_set.get());
        m_set->AddPalette(m_palette);
        m_panelSet.Create(WS_CHILD | WS_VISIBLE, m_palette->GetClientRect(), m_palette, 1);
        m_panel.SetID(L"PANEL");
        m_panel.Create(WS_CHILD | WS_VISIBLE, L"Panel", &m_panelSet);
        m_toolPanel = new ListeningToolPanel;
        m_toolPanel->Create(WS_CHILD | WS_VISIBLE, m_panelSet.GetClientRect(), &m_panel, 100, 0);
        m_panel.AddPanelChild(m_toolPanel);
        m_panelSet.AddPanel(&m_panel);
        frame().frame().ShowControlBar(m_set.get(), 1, 0);
        m_panelSet.UpdateLayout();
        journal().take();
    }

    static constexpr GUID kTool{0x12345678, 0x1234, 0x5678, {1, 2, 3, 4, 5, 6, 7, 8}};

    Toolkit& toolkit() { return m_workbench.toolkit(); }
    MainFrame& frame() { return toolkit().frame(); }
    WindowSystem& windows() { return m_workbench.windows(); }
    Journal& journal() { return m_workbench.journal(); }

    /// A new item of the tool panel.
    CQrUiToolPanelItem& addItem(int type, const VxString& id) {
        return addItemTo(*m_toolPanel, type, id);
    }
    static CQrUiToolPanelItem& addItemTo(CQrUiToolPanel& panel, int type, const VxString& id) {
        auto* const item = new CQrUiToolPanelItem(&panel);
        item->SetType(type);
        item->SetID(id);
        panel.AddToolPanelItem(item);
        return *item;
    }
    /// A new tool of a flyout.
    CQrUiToolPanelItem& addTool(CQrUiToolPanelItem& flyout, int type, const VxString& id) {
        auto* const item = new CQrUiToolPanelItem(m_toolPanel);
        item->SetType(type);
        item->SetID(id);
        flyout.AppendFlyoutItem(item);
        return *item;
    }
    /// Wraps a control's window into an item of a panel.
    static CQrUiToolPanelItem& addControlTo(CQrUiToolPanel& panel, const CWnd& control) {
        CQrUiToolPanelItem& item = addItemTo(panel, kItemControl, L"");
        item.SetControl(control.m_hWnd);
        return item;
    }

    Workbench m_workbench{WorkbenchOptions{}};
    Listening<CQrUiPanelSet> m_panelSet;
    Listening<CQrUiPanel> m_panel;
    std::unique_ptr<Listening<CQrUiPaletteSet>> m_set;
    ListeningPalette* m_palette = nullptr;      // owned by the set
    ListeningToolPanel* m_toolPanel = nullptr;  // owned by the panel
};

}  // namespace workbench
