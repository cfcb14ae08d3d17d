#include "palette/tool_panel_builder.h"

#include "core/module_window.h"
#include "core/roof.h"
#include "core/text.h"
#include "palette/foreign_module.h"
#include "palette/item_images.h"
#include "palette/panel.h"
#include "palette/tool_items.h"

#include <hostapi/qrui18/tool_panel.h>
#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/vxdashboard.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace {

constexpr UINT kPlainToolPanel = 0;
constexpr UINT kIndentedToolPanel = 2;  // toolkit style

/// Window ID of the next tool panel. Only grows, so that no two are alike.
UINT s_nextToolPanelId = 1;

/// The host's controls whose items have an ID other than in the menu data.
struct RenamedItem {
    const wchar_t* dataId;  // compared without regard to case
    const wchar_t* itemId;
};
constexpr RenamedItem kRenamedItems[] = {
    {L"LineTypeControl", L"Line Type Control"},
    {L"OPTColorControl", L"OPT Color Control"},
    {L"LineWeightControl", L"Line Weight Control"},
    {L"PlotStyleControl", L"Plot Style Control"},
};

VxString itemIdOf(const VxString& dataId) {
    for (const RenamedItem& renamed : kRenamedItems) {
        if (equalNoCase(dataId, renamed.dataId))
            return renamed.itemId;
    }
    return dataId;
}

HWND createForeignControl(const VxString& module, const VxString& name, HWND parent) {
    void* symbol = findModuleExport(module, "VxDaGetCustomControl");
    if (symbol == nullptr)
        return nullptr;
    return reinterpret_cast<VxDaGetCustomControlFn>(symbol)(name.c_str(), parent);
}

HWND createOwnControl(const VxString& name, CQrUiToolPanel& parent) {
    ControlRoof* controls = controlRoof();
    return controls == nullptr ? nullptr : controls->createControl(name, &parent);
}

}  // namespace

VxDaToolPanelBuilder::VxDaToolPanelBuilder(VxDaItemIndex& items, std::vector<HWND>& controls,
                                           CVxDaPanel& panel, const CRect& rect)
    : m_items(items),
      m_controls(controls),
      m_panel(panel),
      m_menuGroup(panel.menuGroup()),
      m_rect(rect) {}

void VxDaToolPanelBuilder::addToolPanel(const VxToolPanelData& data, bool hasImage) {
    auto toolPanel = std::make_unique<ModuleWindow<CQrUiToolPanel>>();
    const UINT toolkitStyle = hasImage ? kIndentedToolPanel : kPlainToolPanel;
    if (toolPanel->Create(WS_CHILD | WS_VISIBLE, m_rect, &m_panel, s_nextToolPanelId++,
                          toolkitStyle) == 0) {
        return;
    }
    for (VxToolPanelItemData* itemData : data) {
        if (itemData != nullptr)
            addItem(*toolPanel, *itemData);
    }
    m_panel.AddPanelChild(toolPanel.release());  // the panel takes it over
}

void VxDaToolPanelBuilder::addItem(CQrUiToolPanel& toolPanel, VxToolPanelItemData& data) {
    auto newItem = std::make_unique<CQrUiToolPanelItem>(&toolPanel);
    CQrUiToolPanelItem& item = *newItem;
    QrUiSetToolPanelItemData(&item, &data);
    if (isItemHidden(data.id))
        item.SetState(item.GetState() | kItemHidden);
    item.SetType(data.type);
    item.SetID(itemIdOf(data.id));
    m_items.add(data.id, &item);
    if (data.type == kItemControl) {
        if (!createItemControl(toolPanel, item, data)) {
            m_items.remove(data.id, &item);
            return;
        }
        toolPanel.AddToolPanelItem(newItem.release());  // the tool panel takes it over
        return;
    }
    toolPanel.AddToolPanelItem(newItem.release());  // the tool panel takes it over
    loadItemImages(item, data, m_menuGroup);
    if (data.type == kItemFlyout) {
        FlyoutPath path;
        addFlyout(toolPanel, item, data, path);
    }
}

void VxDaToolPanelBuilder::addFlyout(CQrUiToolPanel& toolPanel, CQrUiToolPanelItem& flyout,
                                     const VxToolPanelItemData& data, FlyoutPath& path) {
    const VxToolPanelData* tools = vxedGetToolPanelData(m_menuGroup, data.flyoutId);
    if (tools == nullptr)
        return;
    path.push_back(data.flyoutId);
    addFlyoutItems(toolPanel, flyout, *tools, path);
    path.pop_back();
}

void VxDaToolPanelBuilder::addFlyoutItems(CQrUiToolPanel& toolPanel, CQrUiToolPanelItem& flyout,
                                          const VxToolPanelData& data, FlyoutPath& path) {
    for (VxToolPanelItemData* itemData : data) {
        if (itemData == nullptr)
            continue;
        auto newItem = std::make_unique<CQrUiToolPanelItem>(&toolPanel);
        CQrUiToolPanelItem& item = *newItem;
        itemData->flags |= kItemDataInFlyout;
        QrUiSetToolPanelItemData(&item, itemData);
        item.SetType(itemData->type);
        item.SetID(itemData->id);
        loadItemImages(item, *itemData, m_menuGroup);
        flyout.AppendFlyoutItem(newItem.release());  // the flyout takes it over
        m_items.add(itemData->id, &item);
        if (itemData->type != kItemFlyout)
            continue;
        // Kept as it is: a flyout that leads back into itself ends the level that it stands on,
        // because the rest of that level would be built again without end.
        if (std::find(path.begin(), path.end(), itemData->flyoutId) != path.end())
            return;
        addFlyout(toolPanel, item, *itemData, path);
    }
}

bool VxDaToolPanelBuilder::createItemControl(CQrUiToolPanel& toolPanel, CQrUiToolPanelItem& item,
                                             const VxToolPanelItemData& data) {
    if (data.controlName.empty())
        return false;
    const HWND control =
        data.module.empty() ? createOwnControl(data.controlName, toolPanel)
                            : createForeignControl(data.module, data.controlName, toolPanel.m_hWnd);
    if (control == nullptr)
        return false;
    m_controls.push_back(control);
    item.SetControl(control);
    return true;
}
