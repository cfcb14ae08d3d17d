#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>

#include <utility>
#include <vector>

class CQrUiToolPanelItem;

/// What the dashboard module offers to the host and its other modules: functions that are found by
/// their names at run time, and the listener that they can register.

/// Codes of `VxDaNotifyDashboard`.
constexpr int kDashboardReleaseControls = 0;  ///< Release the custom controls.
constexpr int kDashboardUnload = 1;           ///< Take the panels down; remember what is on screen.
constexpr int kDashboardReload = 2;           ///< Build the panels again and restore the bar.

/// A listener to the dashboard. Not owned by it. A listener must not take listeners off from inside
/// a call.
class VXHOST VxDaDashboardReactor {
public:
    virtual ~VxDaDashboardReactor() = default;
    virtual void panelsWillUnload() = 0;
    virtual void panelsUnloaded() = 0;
    virtual void panelsWillLoad() = 0;
    virtual void panelsLoaded() = 0;
    virtual void controlsWillBeReleased() = 0;
    /// The bar went on (1) or off (0) the screen.
    virtual void visibilityChanged(BOOL visible) = 0;
};

/// Panels by ID and menu group name.
using VxDaPanelList = std::vector<std::pair<VxString, VxString>>;

/// The items built for one ID. Owned by the dashboard; good until the panels are taken down.
using VxDaToolPanelItems = CTypedPtrArray<CQrUiToolPanelItem*>;

/// Types of the exported functions, each under its function's name with an `Fn`. All but the entry
/// point answer 0, null or false while the dashboard isn't there.
using VxRxEntryPointFn = int (*)(int message, void* appPacket);
using VxRxGetApiVersionFn = int (*)();
/// A new custom control in a parent window, null for an unknown name.
using VxDaGetCustomControlFn = HWND (*)(const wchar_t* name, HWND parent);
/// A click on an item, exported by modules that serve items.
using VxDaButtonClickedFn = void (*)(CQrUiToolPanelItem* item);
using VxDaNotifyDashboardFn = int (*)(int code);
using VxDaAddOrRemoveReactorFn = int (*)(VxDaDashboardReactor* reactor, int add);
using VxDaGetVisiblePanelsFn = int (*)(VxDaPanelList* panels);
using VxDaSetVisiblePanelsFn = int (*)(const VxDaPanelList* panels);
using VxDaGetToolPanelItemsFn = const VxDaToolPanelItems* (*)(const wchar_t* itemId);
using VxDaInvalidateDashboardFn = int (*)();
using SetForce3DNavUpdateFn = void (*)(bool force);
