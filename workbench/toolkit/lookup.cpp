#include "workbench/toolkit/lookup.h"

#include "workbench/toolkit/palette_set_widget.h"
#include "workbench/toolkit/panel_widget.h"
#include "workbench/toolkit/tool_panel_item_record.h"
#include "workbench/toolkit/tool_panel_widget.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <algorithm>

namespace workbench {

namespace {

/// The object of the nearest window at or above with a widget of a type.
template <class Object, class Type>
Object* objectAbove(const WindowSystem& windows, HWND window) {
    for (const Window* found = windows.find(window); found != nullptr;
         found = windows.find(found->parent)) {
        if (dynamic_cast<const Type*>(found->widget.get()) != nullptr)
            return static_cast<Object*>(found->object);
    }
    return nullptr;
}

/// The objects of all windows with a widget of a type, in the order of the window tree.
template <class Object, class Type>
std::vector<Object*> allWith(const WindowSystem& windows) {
    std::vector<Object*> found;
    for (const HWND top : windows.topWindows()) {
        for (const HWND handle : windows.descendants(top)) {
            const Window* const window = windows.find(handle);
            if (dynamic_cast<const Type*>(window->widget.get()) != nullptr)
                found.push_back(static_cast<Object*>(window->object));
        }
    }
    return found;
}

void appendWithTools(CQrUiToolPanelItem& item, std::vector<CQrUiToolPanelItem*>& items) {
    items.push_back(&item);
    for (CQrUiToolPanelItem* tool : item.m_record->flyoutItems)
        appendWithTools(*tool, items);
}

}  // namespace

CQrUiPaletteSet* paletteSetAbove(const WindowSystem& windows, HWND window) {
    return objectAbove<CQrUiPaletteSet, PaletteSetWidget>(windows, window);
}

CQrUiPanel* panelAbove(const WindowSystem& windows, HWND window) {
    return objectAbove<CQrUiPanel, PanelWidget>(windows, window);
}

bool isCustomControl(const WindowSystem& windows, HWND window) {
    const auto isToolPanel = [&windows](HWND handle) {
        const Window* const found = windows.find(handle);
        return found != nullptr &&
               dynamic_cast<const ToolPanelWidget*>(found->widget.get()) != nullptr;
    };
    return isToolPanel(window) && isToolPanel(windows.find(window)->parent);
}

std::vector<CQrUiPanel*> allPanels(const WindowSystem& windows) {
    return allWith<CQrUiPanel, PanelWidget>(windows);
}

std::vector<CQrUiPanel*> findPanels(const WindowSystem& windows, std::wstring_view id) {
    std::vector<CQrUiPanel*> panels = allPanels(windows);
    std::erase_if(panels, [id](const CQrUiPanel* panel) { return panel->GetID() != id; });
    return panels;
}

std::vector<CQrUiToolPanelItem*> allItems(const WindowSystem& windows) {
    std::vector<CQrUiToolPanelItem*> items;
    for (const CQrUiToolPanel* panel : allWith<CQrUiToolPanel, ToolPanelWidget>(windows)) {
        for (int index = 0; index < panel->GetToolPanelItemCount(); ++index)
            appendWithTools(*panel->GetToolPanelItem(index), items);
    }
    return items;
}

std::vector<CQrUiToolPanelItem*> findItems(const WindowSystem& windows, std::wstring_view id) {
    std::vector<CQrUiToolPanelItem*> items = allItems(windows);
    std::erase_if(items, [id](const CQrUiToolPanelItem* item) {
        return knownId(*item) != id && item->GetID() != id;
    });
    return items;
}

CQrUiToolPanel* toolPanelOf(const CQrUiToolPanelItem& item) {
    const CQrUiToolPanelItem* outermost = &item;
    while (outermost->m_record->flyout != nullptr)
        outermost = outermost->m_record->flyout;
    return outermost->m_record->toolPanel;
}

std::wstring shownName(const Toolkit& toolkit, const CQrUiToolPanelItem& item) {
    const VxString& name = item.GetName();
    if (!name.empty())
        return name;
    return toolkit.texts().labelOf(QrUiGetToolPanelItemData(&item));
}

ItemView viewOf(const Toolkit& toolkit, const CQrUiToolPanelItem& item) {
    const CQrUiToolPanelItem::Record& record = *item.m_record;
    ItemView view;
    view.id = knownId(item);
    view.checked = (record.state & kItemChecked) != 0;
    view.disabled = (record.state & kItemDisabled) != 0;
    view.hidden = (record.state & kItemHidden) != 0;
    view.name = record.name;
    view.image = toolkit.pictures().source(record.smallImage);
    if (record.currentTool != nullptr)
        view.tool = knownId(*record.currentTool);
    return view;
}

}  // namespace workbench
