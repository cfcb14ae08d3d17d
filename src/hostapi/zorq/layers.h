#pragma once

#include <hostapi/types.h>
#include <hostapi/vxdb18/database.h>

class CWnd;

/// Whether the host's lists of layers show what the current filter leaves out.
bool vxedGetInvertLayerFilterFlag();
/// Turns the filter round, or not.
void vxedSetInvertLayerFilterFlag(bool invert);
/// Whether the host's own list of layers goes by the current filter (1) or shows all layers (0).
void vxedSetUseCurrentFilterFlag(int use);

/// Has the drawing drawn anew after a change of these layers. `pending` says whether a regeneration
/// stands due anyway.
void vxedRegenLayers(const VxDbObjectIdArray& layers, int pending);
/// Whether a regeneration of the drawing stands due: 1 or 0.
int vxedRegenPending();

/// The dialog with all layer states, over its owner window. Returns 1 when it was closed with a choice,
/// 0 otherwise.
int vxedLayerStateManagerDialog(CWnd* owner);
/// The dialog that saves the layers as a new state; as above.
int vxedLayerStateSaveDialog(CWnd* owner);
