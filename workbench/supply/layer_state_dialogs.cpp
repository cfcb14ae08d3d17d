#include "workbench/core/host_call.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"
#include "workbench/windows/window_system.h"

#include <hostapi/window/wnd.h>
#include <hostapi/zorq/layers.h>

#include <string>

namespace {

using workbench::HostCall;
using workbench::LayerStateDialogs;
using workbench::Workbench;

/// The name of a dialog's owner window; empty for none.
std::string ownerName(const CWnd* owner) {
    const HWND window = owner == nullptr ? nullptr : owner->m_hWnd;
    return window == nullptr ? std::string() : Workbench::current().windows().ownerName(window);
}

using Open = bool (LayerStateDialogs::*)(const std::string& owner);

/// Opens a dialog over its owner; 1 when it was closed with a choice.
int open(HostCall& call, Open dialog, const CWnd* owner) {
    if (call.failed())
        return call.returns(call.status(0));
    LayerStateDialogs& dialogs = Workbench::current().editor().layerStateDialogs();
    return call.returns((dialogs.*dialog)(ownerName(owner)) ? 1 : 0);
}

}  // namespace

int vxedLayerStateManagerDialog(CWnd* owner) {
    HostCall call("vxedLayerStateManagerDialog", {owner});
    return open(call, &LayerStateDialogs::manage, owner);
}

int vxedLayerStateSaveDialog(CWnd* owner) {
    HostCall call("vxedLayerStateSaveDialog", {owner});
    return open(call, &LayerStateDialogs::save, owner);
}
