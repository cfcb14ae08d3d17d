#include "layer/layer_regeneration.h"

#include <hostapi/window/frame.h>
#include <hostapi/zorq/frame_windows.h>
#include <hostapi/zorq/layers.h>

void enterMainWindow() {
    CFrameWnd* frame = vxedGetZorqFrame();
    if (frame == nullptr)
        return;
    frame->EnableWindow(1);
    frame->SetFocus();
}

void regenerateLayers(const VxDbObjectIdArray& layers, CWnd& focusAfterwards) {
    {
        const CWaitCursor waiting;
        enterMainWindow();
        vxedRegenLayers(layers, vxedRegenPending());
    }
    focusAfterwards.SetFocus();
}
