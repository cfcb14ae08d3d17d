#include "workbench/desktop/app/reveal.h"

#include "workbench/desktop/mirror/item_widget.h"
#include "workbench/desktop/mirror/mirror_widget.h"
#include "workbench/desktop/mirror/stage.h"
#include "workbench/desktop/mirror/window_mirror.h"
#include "workbench/desktop/panes/panel_search.h"
#include "workbench/editor/editor.h"
#include "workbench/gestures/menu_gestures.h"
#include "workbench/host/workbench.h"
#include "workbench/toolkit/key_road.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/panel_widget.h"
#include "workbench/toolkit/tool_panel_item_record.h"
#include "workbench/toolkit/tool_panel_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

namespace workbench::desktop {

namespace {

void showDashboard(Stage& stage) {
    for (const CQrUiPaletteSet* set : stage.toolkit.frame().bars()) {
        if (stage.windows.isOnScreen(set->m_hWnd))
            return;
    }
    stage.workbench.editor().type(L"DASHBOARDOLD\n");
}

/// By the menu, as a user does.
void showPanel(Stage& stage, const CQrUiPanel& panel) {
    const CQrUiPaletteSet* const set = paletteSetAbove(stage.windows, panel.m_hWnd);
    if (set != nullptr && !stage.windows.isOnScreen(panel.m_hWnd))
        gestures::chooseFromContextMenu(stage.toolkit, set->m_hWnd,
                                        L"Panels/" + panel.GetWindowText());
    Window* const window = stage.windows.find(panel.m_hWnd);
    if (window != nullptr)
        static_cast<PanelWidget&>(*window->widget).collapse(*window, false);
}

/// The item to mark: the tool, or the flyout around it, or the head of the control.
const CQrUiToolPanelItem* itemOf(const Stage& stage, const SearchHit& hit) {
    if (!hit.item.empty()) {
        const auto found = findItems(stage.windows, hit.item);
        const CQrUiToolPanelItem* item = found.empty() ? nullptr : found.front();
        while (item != nullptr && item->m_record->flyout != nullptr)
            item = item->m_record->flyout;
        return item;
    }
    const Window* const control = stage.windows.find(stage.windows.findByName(hit.control));
    const auto* panel =
        control == nullptr ? nullptr : dynamic_cast<const CQrUiToolPanel*>(control->object);
    return panel == nullptr ? nullptr : panel->GetToolPanelItem(0);
}

/// Brings the keyboard to the tool, so that Enter runs it, or to the first part of the control.
void bringKeyboard(Stage& stage, const SearchHit& hit, const CQrUiToolPanelItem& item) {
    const CQrUiToolPanel* const panel = toolPanelOf(item);
    Window* const window = panel == nullptr ? nullptr : stage.windows.find(panel->m_hWnd);
    if (window == nullptr)
        return;
    if (hit.item.empty()) {
        goToNextField(stage.toolkit, window->handle, false);
        return;
    }
    int index = 0;
    while (index < panel->GetToolPanelItemCount() && panel->GetToolPanelItem(index) != &item)
        ++index;
    static_cast<ToolPanelWidget&>(*window->widget).markTool(*window, index);
    stage.windows.setFocus(window->handle);
}

void mark(const WindowMirror& mirror, const CQrUiToolPanelItem& item) {
    const CQrUiToolPanel* const panel = toolPanelOf(item);
    const MirrorWidget* const widget = panel == nullptr ? nullptr : mirror.widgetOf(panel->m_hWnd);
    if (widget == nullptr)
        return;
    for (ItemWidget* each : widget->items()) {
        if (each->item() == &item)
            each->flash();
    }
}

}  // namespace

void reveal(Stage& stage, WindowMirror& mirror, const SearchHit& hit) {
    stage.pump.act([&] {
        showDashboard(stage);
        for (const CQrUiPanel* panel : findPanels(stage.windows, hit.panel))
            showPanel(stage, *panel);
    });
    const CQrUiToolPanelItem* const item = itemOf(stage, hit);
    if (item == nullptr)
        return;
    const CQrUiToolPanel* const panel = toolPanelOf(*item);
    stage.pump.act([&] {
        mirror.scrollIntoView(panel->m_hWnd);
        bringKeyboard(stage, hit, *item);
    });
    mirror.sync();
    mark(mirror, *item);
}

QWidget* floatingDashboard(Stage& stage, WindowMirror& mirror) {
    for (CQrUiPaletteSet* set : stage.toolkit.frame().bars()) {
        const CFrameWnd* const frame = stage.toolkit.frame().frameOf(*set);
        QWidget* const widget = frame == nullptr ? nullptr : mirror.widgetOf(frame->m_hWnd);
        if (widget != nullptr && widget->isWindow() && widget->isVisible())
            return widget;
    }
    return nullptr;
}

}  // namespace workbench::desktop
