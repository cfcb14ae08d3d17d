#include "workbench/core/host_call.h"
#include "workbench/host/workbench.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/palette_set.h>
#include <hostapi/window/frame.h>
#include <hostapi/zorq/frame_windows.h>

using workbench::HostCall;
using workbench::Workbench;

namespace {

workbench::MainFrame& mainFrame() {
    return Workbench::current().toolkit().frame();
}

/// A window of the main frame as a call's result: null while the call is told to fail.
template <class Type>
Type* windowUnlessFailed(const char* name, Type& window) {
    HostCall call(name);
    Type* const result = call.failed() ? nullptr : &window;
    call.returns(static_cast<const void*>(result));
    return result;
}

}  // namespace

CFrameWnd* CControlBar::GetDockingFrame() const {
    HostCall call("CControlBar::GetDockingFrame");
    const auto* const set = dynamic_cast<const CQrUiPaletteSet*>(this);
    CFrameWnd* const frame = set == nullptr || call.failed() ? nullptr : mainFrame().frameOf(*set);
    call.returns(static_cast<const void*>(frame));
    return frame;
}

void CFrameWnd::ShowControlBar(CControlBar* bar, BOOL show, BOOL delay) {
    const HostCall call("CFrameWnd::ShowControlBar", {bar, show, delay});
    auto* const set = dynamic_cast<CQrUiPaletteSet*>(bar);
    if (set != nullptr && !call.failed())
        mainFrame().show(*set, show != 0, delay != 0);
}

CWnd* AfxGetMainWnd() {
    return windowUnlessFailed<CWnd>("AfxGetMainWnd", mainFrame().frame());
}

CFrameWnd* vxedGetZorqFrame() {
    return windowUnlessFailed("vxedGetZorqFrame", mainFrame().frame());
}

CWnd* vxedGetZorqDwgView() {
    return windowUnlessFailed("vxedGetZorqDwgView", mainFrame().drawingView());
}

CWnd* vxedGetZorqDockCmdLine() {
    return windowUnlessFailed("vxedGetZorqDockCmdLine", mainFrame().commandLine());
}
