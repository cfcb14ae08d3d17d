#include "workbench/core/host_call.h"
#include "workbench/host/workbench.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/collation.h"
#include "workbench/windows/window_system.h"

#include <hostapi/window.h>

#include <memory>

namespace {

using workbench::Collation;
using workbench::HostCall;
using workbench::Workbench;

/// Width of the frame by which a window is sized, in pixels.
constexpr int kSizeFrameWidth = 4;

/// The order of the user's language; making one takes long, so the last one is kept.
const Collation& usersOrder() {
    static std::unique_ptr<Collation> order;
    const std::string& locale = Workbench::current().options().locale;
    if (order == nullptr || order->locale() != locale)
        order = std::make_unique<Collation>(locale);
    return *order;
}

}  // namespace

BOOL IsWindow(HWND window) {
    return Workbench::current().windows().find(window) != nullptr ? 1 : 0;
}

LRESULT SendMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return Workbench::current().windows().send(window, message, wParam, lParam);
}

short GetKeyState(int key) {
    HostCall call("GetKeyState", {key});
    constexpr short kDown = -128;
    constexpr short kUp = 0;
    const bool held = !call.failed() && Workbench::current().windows().keys().isHeld(key);
    return held ? kDown : kUp;
}

int GetSystemMetrics(int index) {
    HostCall call("GetSystemMetrics", {index});
    return call.returns(!call.failed() && index == SM_CXSIZEFRAME ? kSizeFrameWidth : 0);
}

void SetArrowCursor() {
    // Nothing here shows a cursor; the journal tells that it was set.
    const HostCall call("SetArrowCursor");
}

BOOL TrackMouseEvent(TRACKMOUSEEVENT* request) {
    HostCall call("TrackMouseEvent", {request == nullptr ? DWORD{0} : request->dwFlags});
    if (call.failed() || request == nullptr || !IsWindow(request->hwndTrack))
        return call.returns(0);
    if ((request->dwFlags & TME_LEAVE) != 0)
        Workbench::current().toolkit().mouse().tellOfLeaving(request->hwndTrack);
    return call.returns(1);
}

CWaitCursor::CWaitCursor() {
    // Nothing here shows a cursor; the journal tells when it came and went.
    const HostCall call("CWaitCursor::CWaitCursor");
}

CWaitCursor::~CWaitCursor() {
    if (Workbench::living() != nullptr)
        const HostCall call("CWaitCursor::~CWaitCursor");
}

int Collate(const VxString& left, const VxString& right) {
    return usersOrder().compare(left, right);
}

int CollateNoCase(const VxString& left, const VxString& right) {
    return usersOrder().compareNoCase(left, right);
}
