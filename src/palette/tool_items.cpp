#include "palette/tool_items.h"

#include "core/resources.h"
#include "core/roof.h"
#include "core/text.h"
#include "palette/item_images.h"
#include "palette/panel_set.h"

#include <hostapi/qrui18/messages.h>
#include <hostapi/qrui18/tool_panel_item.h>

namespace {

const VxDaToolPanelItems* findItems(std::wstring_view id) {
    const CVxDaPanelSet* panelSet = currentPanelSet();
    return panelSet == nullptr ? nullptr : panelSet->findToolPanelItems(id);
}

constexpr UINT withFlag(UINT state, UINT mask, bool on) {
    return on ? state | mask : state & ~mask;
}

/// Returns whether all matching tools were taken.
bool selectTool(CQrUiToolPanelItem& flyout, const VxString& toolKey) {
    const auto* tools = flyout.GetFlyoutItems();
    if (tools == nullptr)
        return true;
    bool allTaken = true;
    for (CQrUiToolPanelItem* tool : *tools) {
        if (!equalNoCase(tool->GetID(), toolKey))
            continue;
        allTaken = flyout.SetCurrentFlyoutTool(tool) != 0 && allTaken;
        if (allTaken)
            flyout.Invalidate();
    }
    return allTaken;
}

}  // namespace

int SetItemFlag(std::wstring_view id, bool on, UINT mask, const wchar_t* name,
                const wchar_t* imageKey) {
    const VxDaToolPanelItems* items = findItems(id);
    if (items == nullptr)
        return 0;
    for (CQrUiToolPanelItem* item : *items) {
        const UINT before = item->GetState();
        const UINT after = withFlag(before, mask, on);
        if (after != before)
            item->SetState(after);
        if (name != nullptr)
            item->SetName(name);
        if (imageKey != nullptr) {
            loadItemImage(*item, imageKey, dashboardResources().library(), ItemImageSize::Small);
        }
        if (imageKey != nullptr || after != before)
            item->Invalidate();
    }
    return 1;
}

int setItemsHidden(const CStringArray& ids, bool hide) {
    ControlRoof* controls = controlRoof();
    if (controls == nullptr)
        return 0;
    if (controls->setItemsHidden(ids, hide) == 0)
        return 1;
    CVxDaPanelSet* panelSet = currentPanelSet();
    if (panelSet == nullptr)
        return 1;
    bool touched = false;
    for (const VxString& id : ids) {
        const VxDaToolPanelItems* items = panelSet->findToolPanelItems(id);
        if (items == nullptr)
            return 0;
        for (CQrUiToolPanelItem* item : *items) {
            item->SetState(withFlag(item->GetState(), kItemHidden, hide));
            touched = true;
        }
    }
    // A change of theme forces a new layout.
    if (touched) {
        panelSet->PostMessage(WM_QRUI_THEME_CHANGED, 0,
                              reinterpret_cast<LPARAM>(panelSet->GetTheme()));
    }
    return 1;
}

bool isItemHidden(const VxString& id) {
    const ControlRoof* controls = controlRoof();
    return controls != nullptr && controls->isItemHidden(id);
}

int setItemName(std::wstring_view id, const VxString& name) {
    const VxDaToolPanelItems* items = findItems(id);
    if (items == nullptr)
        return 0;
    for (CQrUiToolPanelItem* item : *items) {
        if (item->GetName() != name)
            item->SetName(name);
    }
    return 1;
}

int selectFlyoutTool(std::wstring_view flyoutKey, const VxString& toolKey) {
    const CVxDaPanelSet* panelSet = currentPanelSet();
    if (panelSet == nullptr)
        return 0;
    const VxDaToolPanelItems* items = panelSet->findToolPanelItems(flyoutKey);
    if (items == nullptr)
        return 1;
    bool allTaken = true;
    for (CQrUiToolPanelItem* item : *items) {
        if (item->GetType() != kItemFlyout)
            return 0;
        allTaken = selectTool(*item, toolKey) && allTaken;
    }
    return allTaken ? 1 : 0;
}
