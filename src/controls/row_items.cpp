#include "controls/row_items.h"

#include "core/resources.h"

#include <hostapi/qrui18/image.h>
#include <hostapi/qrui18/tool_panel.h>
#include <hostapi/qrui18/tool_panel_item.h>

#include <memory>

namespace {

constexpr const wchar_t* kRowBreakId = L"TPB_VXDA_SLIDER_ROWBREAK";
constexpr const wchar_t* kSeparatorId = L"TPB_VXDA_SLIDER_SEPARATOR";
constexpr UINT kGapStyle = 4;
constexpr int kSmallPixels = 16;
constexpr int kLargePixels = 32;
constexpr int kToolkitChoice = -1;

/// Appends a new item; the control takes it over.
CQrUiToolPanelItem* appendItem(CQrUiToolPanel* control, int type) {
    auto item = std::make_unique<CQrUiToolPanelItem>(control);
    item->SetType(type);
    control->AddToolPanelItem(item.get());
    return item.release();
}

HBITMAP loadPicture(const VxString& imageKey, int pixels) {
    if (imageKey.find(L'.') != VxString::npos)
        return LoadBitmapFileGdiPlus(imageKey.c_str());
    return QrUiLoadImageFromResource(dashboardResources().library(), imageKey.c_str(), pixels,
                                     kToolkitChoice);
}

}  // namespace

BOOL addRowBreakItem(CQrUiToolPanel* control) {
    if (control == nullptr)
        return 0;
    appendItem(control, kItemRowBreak)->SetID(kRowBreakId);
    return 1;
}

BOOL addSeparatorItem(CQrUiToolPanel* control) {
    if (control == nullptr)
        return 0;
    CQrUiToolPanelItem* item = appendItem(control, kItemSeparator);
    item->SetID(kSeparatorId);
    item->SetStyle(kGapStyle);
    return 1;
}

BOOL addControlItem(CQrUiToolPanel* control, HWND window) {
    if (control == nullptr || window == nullptr)
        return 0;
    appendItem(control, kItemControl)->SetControl(window);
    return 1;
}

CQrUiToolPanelItem* addIconItem(CQrUiToolPanel* control, const wchar_t* itemId,
                                const wchar_t* imageKey) {
    if (control == nullptr)
        return nullptr;
    CQrUiToolPanelItem* item = appendItem(control, kItemButton);
    item->SetID(itemId);
    setItemImages(*item, imageKey);
    return item;
}

void setItemImages(CQrUiToolPanelItem& item, const VxString& imageKey) {
    if (HBITMAP small = loadPicture(imageKey, kSmallPixels))
        item.SetImage(kItemSmallImage, small);
    if (HBITMAP large = loadPicture(imageKey, kLargePixels))
        item.SetImage(kItemLargeImage, large);
}
