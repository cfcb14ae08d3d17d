#include "palette/item_images.h"

#include "core/resources.h"

#include <hostapi/qrui18/image.h>

namespace {

struct ImageSlot {
    int slot;
    int pixels;
};

constexpr ImageSlot slotOf(ItemImageSize size) {
    return size == ItemImageSize::Small ? ImageSlot{kItemSmallImage, kSmallPixels}
                                        : ImageSlot{kItemLargeImage, kLargePixels};
}

bool hasFileExtension(const VxString& key) {
    const std::size_t dot = key.find_last_of(L"./\\");
    return dot != VxString::npos && key[dot] == L'.' && dot + 1 < key.size();
}

bool takesImages(const VxToolPanelItemData& data) {
    switch (data.type) {
    case kItemControl:
    case kItemSeparator:
    case kItemRowBreak:
        return false;
    case kItemFlyout:
        return data.flyoutImage != 0;
    default:
        return true;
    }
}

void loadFromEitherLibrary(CQrUiToolPanelItem& item, const VxString& key, const VxString& menuGroup,
                           ItemImageSize size) {
    if (key.empty() || loadItemImage(item, key, iconLibrary(), size))
        return;
    const HINSTANCE groupModule = vxedGetPanelSetResourceHandle(menuGroup);
    if (groupModule != nullptr)
        loadItemImage(item, key, groupModule, size);
}

}  // namespace

bool loadItemImage(CQrUiToolPanelItem& item, const VxString& key, HINSTANCE library,
                   ItemImageSize size) {
    if (key.empty())
        return false;
    const ImageSlot slot = slotOf(size);
    if (hasFileExtension(key)) {
        if (HBITMAP picture = LoadBitmapFileGdiPlus(key.c_str())) {
            item.SetImage(slot.slot, picture);
        }
        // Kept as it is: a file counts as not found even when it was set, because the caller's
        // second source may replace the picture.
        return false;
    }
    HBITMAP picture = loadPicture(library, key.c_str(), slot.pixels);
    if (picture == nullptr)
        return false;
    item.SetImage(slot.slot, picture);
    return true;
}

void loadItemImages(CQrUiToolPanelItem& item, const VxToolPanelItemData& data,
                    const VxString& menuGroup) {
    if (!takesImages(data))
        return;
    loadFromEitherLibrary(item, data.smallImage, menuGroup, ItemImageSize::Small);
    loadFromEitherLibrary(item, data.largeImage, menuGroup, ItemImageSize::Large);
}

HBITMAP loadPanelImage(const VxString& key, const VxString& menuGroup) {
    if (key.empty())
        return nullptr;
    if (HBITMAP picture = loadPicture(iconLibrary(), key.c_str(), kSmallPixels))
        return picture;
    const HINSTANCE groupModule = vxedGetPanelSetResourceHandle(menuGroup);
    if (HBITMAP picture = loadPicture(groupModule, key.c_str(), kSmallPixels))
        return picture;
    return LoadBitmapFileGdiPlus(key.c_str());
}
