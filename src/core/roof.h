#pragma once

#include "core/quiescent_action.h"

#include <hostapi/types.h>

#include <memory>

class CQrUiToolPanelItem;
class CVxDaPanelSet;
class CWnd;

/// What panels and controls ask of the module's roof, which stands above them: the palette set's side.
class DashboardRoof {
public:
    /// Whether the dashboard is on screen.
    virtual bool isDashboardVisible() const = 0;
    /// The panel set; null as soon as one link of the way to it is null.
    virtual CVxDaPanelSet* panelSet() const = 0;
    /// Tells the listeners that the palette set went on or off the screen.
    virtual void visibilityChanged(BOOL visible) = 0;

protected:
    ~DashboardRoof() = default;
};

/// The controls' side of the roof.
class ControlRoof {
public:
    /// A new control in a parent window. Null for an empty or unknown name and if the control could
    /// not be made.
    virtual HWND createControl(const VxString& name, CWnd* parent) = 0;
    /// Handles a click on an item of this module. Answers 1 for an item it has no use for.
    virtual int handleToolClick(CQrUiToolPanelItem* item) = 0;
    /// Adds IDs to, or takes them off, the list of hidden items; IDs are exact. Whether the list
    /// changed.
    virtual BOOL setItemsHidden(const CStringArray& ids, bool add) = 0;
    /// Whether an ID is on the list of hidden items.
    virtual bool isItemHidden(const VxString& id) const = 0;
    /// Runs an action at once if no command is active. Otherwise stops the command and queues the
    /// action until the current document's command processor rests; without a document it is
    /// dropped.
    virtual void runWhenQuiescent(std::unique_ptr<QuiescentAction> action) = 0;

protected:
    ~ControlRoof() = default;
};

/// Each is null while the module isn't loaded; not owned. The roof sets them at its start and takes
/// them back at its end.
DashboardRoof* dashboardRoof();
ControlRoof* controlRoof();
void setDashboardRoof(DashboardRoof* roof);
void setControlRoof(ControlRoof* roof);

/// Whether the dashboard is on screen; false without a roof.
bool isDashboardVisible();
/// The panel set; null without a roof and as soon as one link of the way to it is null.
CVxDaPanelSet* currentPanelSet();
/// Runs an action at a quiet moment; without a roof it is dropped.
void runWhenQuiescent(std::unique_ptr<QuiescentAction> action);
