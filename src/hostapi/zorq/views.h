#pragma once

#include <hostapi/export.h>
#include <hostapi/vxdb18/database.h>
#include <hostapi/vxge18.h>

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
    /// Where the camera stands, and where it looks.
    virtual VxGePoint3d eyePosition() const = 0;
    virtual VxGePoint3d target() const = 0;
    virtual VxGeVector3d upVector() const = 0;
    /// Size of the field at the target, in drawing units.
    virtual double fieldWidth() const = 0;
    virtual double fieldHeight() const = 0;
    /// Sets all of it at once.
    virtual void setView(const VxGePoint3d& eye, const VxGePoint3d& target, const VxGeVector3d& up,
                         double fieldWidth, double fieldHeight, bool perspective) = 0;
    /// Has the view drawn anew.
    virtual void update() = 0;
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
/// Writes a view's parameters back to a viewport; with `true, false, false`: at once, with neither a
/// smooth transition nor a change of the viewport's size. Returns 0 on failure.
BOOL vxgsSetViewParameters(int viewportNumber, VxGsView* view, bool regenerate, bool rescale,
                           bool sync);
/// The lens of a viewport's view in millimetres. Returns 0, and leaves `lens` alone, on failure.
BOOL vxgsGetLensLength(int viewportNumber, double& lens);
/// Sets it. Returns 0 on failure.
BOOL vxgsSetLensLength(int viewportNumber, double lens);
/// Records a viewport's present view, so that its next change can be undone: one undo gives it back. What
/// a user changes between the press and the release of a mouse button, or in one run of the wheel, is one
/// step of undo and one of the view history anyway, however often it is recorded.
void vxgsWriteViewToUndoController(int viewportNumber);
/// Tells the host and its reactors that the view of the current viewport changed.
void vxedSendViewChanged();

/// The host's own list of views.
class VXHOST VxViewMgrDlg {
public:
    /// Tells the host that its list no longer shows the view in force.
    static void viewComboClear();
};

/// The named view that the current viewport shows, null if it shows none.
VxDbObjectId vxInternalGetCurVPAppliedView();
/// Whether the current viewport has an earlier view to go back to; never while it is locked.
bool vxInternalIsCurVPZoomUndoAvailable();
/// Gives the current viewport its previous view back, whatever has changed it; nothing if it is locked,
/// or the document is not locked for writing.
void vxInternalZoomPrevious();
/// Steps the current viewport back by one zoom: gives it the last view with another lens or another
/// size of its field back, and so takes back what moved the view since. Nothing where there is none, and
/// as above.
void vxInternalZoomBack();
