#include "workbench/toolkit/tool_panel_layout.h"

#include "workbench/toolkit/control_widget.h"
#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/tool_panel_item_record.h"
#include "workbench/toolkit/tool_panel_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

namespace workbench {

namespace {

RowItem::Kind kindOf(int type) {
    switch (type) {
    case kItemFlyout:
        return RowItem::Kind::Flyout;
    case kItemControl:
        return RowItem::Kind::Control;
    case kItemSeparator:
        return RowItem::Kind::Separator;
    case kItemRowBreak:
        return RowItem::Kind::RowBreak;
    default:
        return RowItem::Kind::Button;
    }
}

/// Hides the control of a hidden item. Shows only what was hidden here: a control that its owner
/// hid stays so.
void showControl(WindowSystem& windows, CQrUiToolPanelItem::Record& record, bool shown) {
    const Window* const window = windows.find(record.control);
    if (!shown && window->hasVisibleStyle()) {
        record.controlHidden = true;
        windows.show(record.control, false);
    } else if (shown && record.controlHidden) {
        record.controlHidden = false;
        windows.show(record.control, true);
    }
}

void placeControl(Toolkit& toolkit, HWND control, const CRect& rect) {
    WindowSystem& windows = toolkit.windows();
    constexpr UINT kFlags = SWP_NOZORDER | SWP_NOACTIVATE;
    const Window* const window = windows.find(control);
    if (dynamic_cast<const ToolPanelWidget*>(window->widget.get()) == nullptr) {
        windows.place(control, rect, kFlags);
        return;
    }
    auto& panel = *static_cast<CQrUiToolPanel*>(window->object);
    auto& states = toolkit.toolPanels();
    states.of(&panel).beingPlaced = true;
    windows.place(control, rect, kFlags);
    if (windows.find(control) == nullptr)
        return;
    states.of(&panel).beingPlaced = false;
    panel.UpdateLayout(0);
}

/// An item whose custom control was not asked yet; null for none.
CQrUiToolPanelItem* nextToAsk(const WindowSystem& windows, const CQrUiToolPanel& panel) {
    for (int index = 0; index < panel.GetToolPanelItemCount(); ++index) {
        CQrUiToolPanelItem* const item = panel.GetToolPanelItem(index);
        if (!item->m_record->asked && isCustomControl(windows, item->GetControl()))
            return item;
    }
    return nullptr;
}

/// Whether an item still stands on a panel.
bool standsOn(const CQrUiToolPanel& panel, const CQrUiToolPanelItem* item) {
    for (int index = 0; index < panel.GetToolPanelItemCount(); ++index) {
        if (panel.GetToolPanelItem(index) == item)
            return true;
    }
    return false;
}

}  // namespace

bool askControls(Toolkit& toolkit, const CQrUiToolPanel& panel) {
    WindowSystem& windows = toolkit.windows();
    const HWND handle = panel.m_hWnd;
    while (CQrUiToolPanelItem* const item = nextToAsk(windows, panel)) {
        item->m_record->asked = true;
        const HWND control = item->GetControl();
        const bool sharesRow = windows.send(control, WM_QRUI_ROW_QUERY, 0, 0) != 0;
        if (windows.find(handle) == nullptr)
            return false;
        if (standsOn(panel, item))
            item->m_record->sharesRow = sharesRow;
    }
    return true;
}

std::vector<RowItem> rowItemsOf(const CQrUiToolPanel& panel) {
    std::vector<RowItem> items;
    items.reserve(static_cast<std::size_t>(panel.GetToolPanelItemCount()));
    for (int index = 0; index < panel.GetToolPanelItemCount(); ++index) {
        const CQrUiToolPanelItem& item = *panel.GetToolPanelItem(index);
        items.push_back({.kind = kindOf(item.GetType()),
                         .hidden = (item.GetState() & kItemHidden) != 0,
                         .alone = !item.m_record->sharesRow});
    }
    return items;
}

int controlHeight(const WindowSystem& windows, const CQrUiToolPanelItem& item, int width) {
    const Window* const window = windows.find(item.GetControl());
    if (window == nullptr)
        return 0;
    const auto* const control = dynamic_cast<const ControlWidget*>(window->widget.get());
    return control == nullptr ? window->rect.Height() : control->naturalHeight(*window, width);
}

void placeItem(Toolkit& toolkit, CQrUiToolPanelItem& item, const CRect& rect) {
    CQrUiToolPanelItem::Record& record = *item.m_record;
    record.rect = rect;
    record.laidOut = true;
    if (toolkit.windows().find(record.control) == nullptr)
        return;
    const bool shown = (record.state & kItemHidden) == 0;
    const HWND control = record.control;
    showControl(toolkit.windows(), record, shown);
    if (shown && toolkit.windows().find(control) != nullptr)
        placeControl(toolkit, control, rect);
}

}  // namespace workbench
