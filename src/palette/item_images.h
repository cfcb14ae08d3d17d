#pragma once

#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/types.h>
#include <hostapi/zorq/menu_data.h>

/// Pictures of items and panels. A key with a file extension names a picture file, any other one a
/// resource; resources are looked for in the library of tool images, then in the resource module of
/// the menu group.

enum class ItemImageSize { Small, Large };

/// Puts the picture of a key into an item. Returns true if a resource was found and set; false for
/// an empty key, for a missing resource, and for every file, whether it was set or not.
bool loadItemImage(CQrUiToolPanelItem& item, const VxString& key, HINSTANCE library,
                   ItemImageSize size);

/// Puts an item's pictures into it, as its menu data names them.
void loadItemImages(CQrUiToolPanelItem& item, const VxToolPanelItemData& data,
                    const VxString& menuGroup);

/// The picture of a panel's title bar; null if the key is empty or found nowhere. Owned by the
/// caller.
HBITMAP loadPanelImage(const VxString& key, const VxString& menuGroup);
