#pragma once

#include <hostapi/export.h>
#include <hostapi/vxdb18/database.h>

class CWnd;

/// An interactive navigation tool. Owned by the host.
class CTool;

/// Whether an interactive navigation tool runs; gives the tool out, which may be null.
bool OrbitInProgress(CTool*& tool);

/// The database ID of the active viewport, null for none.
VxDbObjectId vxedActiveViewportId();
/// The database ID of the current viewport, null for none.
VxDbObjectId vxedGetCurViewportObjectId();

/// A view of the graphics system.
class VXHOST VxGsView {
public:
    virtual ~VxGsView() = default;
    /// Whether the view is in perspective.
    virtual bool isPerspective() const = 0;
};

/// What a view is made for.
struct VxGsViewDescriptor {
    int viewportNumber = -1;
    VxDbObjectId viewportId;
};

/// Makes and ends temporary views.
class VXHOST VxGsClassFactory {
public:
    virtual ~VxGsClassFactory() = default;
    /// A new view, to be given to `deleteView`; null on failure.
    virtual VxGsView* createView(const VxGsViewDescriptor& descriptor) = 0;
    virtual void deleteView(VxGsView* view) = 0;
};

/// The graphics system.
class VXHOST VxGsManager {
public:
    virtual ~VxGsManager() = default;
    virtual VxGsClassFactory* classFactory() = 0;
};

/// The graphics system of a view window, null for the main one.
VxGsManager* vxgsGetGsManager(CWnd* viewWindow);
/// The live view of a viewport, null if it has none; `create` makes one.
VxGsView* vxgsGetGsView(int viewportNumber, bool create);
/// Copies a viewport's parameters into a view. Returns 0 on failure.
BOOL vxgsGetViewParameters(int viewportNumber, VxGsView* view);
