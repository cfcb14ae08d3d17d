#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>

/// Flag of item data: the item lives in a flyout. Set by the dashboard.
constexpr UINT kItemDataInFlyout = 8;

/// One item of a tool panel in the host's menu data. Owned by the host.
struct VxToolPanelItemData {
    int type = 0;  ///< As `CQrUiToolPanelItem`'s types.
    UINT flags = 0;
    VxString smallImage;   ///< Resource key or file name; empty for none.
    VxString largeImage;   ///< Resource key or file name; empty for none.
    VxString controlName;  ///< Name of a custom control (type 2).
    VxString macro;        ///< The menu macro to run on a click.
    VxString id;           ///< The item's key.
    VxString flyoutId;     ///< The tool panel with the items of this flyout (type 1).
    int flyoutImage = 0;   ///< With 0, a flyout takes no image of its own.
    VxString module;       ///< The module that handles this item; empty for macro items.
};

/// The items of a tool panel. Owned by the host.
using VxToolPanelData = CTypedPtrArray<VxToolPanelItemData*>;

/// One panel in the host's menu data. Owned by the host.
struct VxPanelData {
    VxString id;
    VxString title;
    VxString menuGroup;
    VxString image;  ///< Resource key or file name; empty for none.
    CStringArray toolPanelIds;
};

/// All panels, in the host's order. Owned by the host.
using VxPanelSetData = CTypedPtrArray<VxPanelData*>;

/// A panel that a workspace shows.
struct VxWsPanelData {
    VxString panelId;
    VxString menuGroup;
};

/// The panels of the menu data, null for none.
const VxPanelSetData* vxedGetPanelSetData();
/// The items of a tool panel of a menu group, null for none.
const VxToolPanelData* vxedGetToolPanelData(const VxString& menuGroup, const VxString& toolPanelId);
/// The panels that the current workspace shows, in order. False, with the list left alone, without
/// workspace data.
bool vxedGetWorkspacePanelData(std::vector<VxWsPanelData>& panels);
/// The resource module of a menu group, null for none.
HINSTANCE vxedGetPanelSetResourceHandle(const VxString& menuGroup);
/// Whether the panels are to follow the workspace at the next refresh.
bool vxedGetPanelRefreshFromWS();
/// Raises or resets that flag.
void vxedSetPanelRefreshFromWS(bool refresh);

/// The customization dialog.
class VXHOST VxCustomizationInterface {
public:
    virtual ~VxCustomizationInterface() = default;
    /// Has the dialog open on a panel.
    virtual void selectPanel(const VxString& menuGroup, const VxString& panelId) = 0;
};

/// The customization dialog's interface, null if it is not installed.
VxCustomizationInterface* zorqiGetCustomizationInterface();
