#include "controls/row_items.h"

#include "core/resources.h"

#include <hostapi/qrui18/image.h>
#include <hostapi/qrui18/tool_panel.h>
#include <hostapi/qrui18/tool_panel_item.h>

#include <memory>
#include <utility>

namespace {

constexpr const wchar_t* kRowBreakId = L"TPB_VXDA_SLIDER_ROWBREAK";
constexpr const wchar_t* kSeparatorId = L"TPB_VXDA_SLIDER_SEPARATOR";
constexpr UINT kGapStyle = 4;

using ItemPtr = std::unique_ptr<CQrUiToolPanelItem>;

ItemPtr makeItem(CQrUiToolPanel* control, int type) {
    auto item = std::make_unique<CQrUiToolPanelItem>(control);
    item->SetType(type);
    return item;
}

/// Appends an item, which the control takes over.
CQrUiToolPanelItem* append(CQrUiToolPanel* control, ItemPtr item) {
    control->AddToolPanelItem(item.get());
    return item.release();
}

HBITMAP loadFileOrResource(const VxString& imageKey, int pixels) {
    if (imageKey.find(L'.') != VxString::npos)
        return LoadBitmapFileGdiPlus(imageKey.c_str());
    return loadDashboardPicture(imageKey.c_str(), pixels);
}

}  // namespace

BOOL addRowBreakItem(CQrUiToolPanel* control) {
    if (control == nullptr)
        return 0;
    ItemPtr item = makeItem(control, kItemRowBreak);
    item->SetID(kRowBreakId);
    append(control, std::move(item));
    return 1;
}

BOOL addSeparatorItem(CQrUiToolPanel* control) {
    if (control == nullptr)
        return 0;
    ItemPtr item = makeItem(control, kItemSeparator);
    item->SetID(kSeparatorId);
    item->SetStyle(kGapStyle);
    append(control, std::move(item));
    return 1;
}

BOOL addControlItem(CQrUiToolPanel* control, HWND window) {
    if (control == nullptr || window == nullptr)
        return 0;
    ItemPtr item = makeItem(control, kItemControl);
    item->SetControl(window);
    append(control, std::move(item));
    return 1;
}

CQrUiToolPanelItem* addIconItem(CQrUiToolPanel* control, const wchar_t* itemId,
                                const wchar_t* imageKey) {
    if (control == nullptr)
        return nullptr;
    ItemPtr item = makeItem(control, kItemButton);
    item->SetID(itemId);
    setItemImages(*item, imageKey);
    return append(control, std::move(item));
}

void setItemImages(CQrUiToolPanelItem& item, const VxString& imageKey) {
    if (HBITMAP small = loadFileOrResource(imageKey, kSmallPixels))
        item.SetImage(kItemSmallImage, small);
    if (HBITMAP large = loadFileOrResource(imageKey, kLargePixels))
        item.SetImage(kItemLargeImage, large);
}
