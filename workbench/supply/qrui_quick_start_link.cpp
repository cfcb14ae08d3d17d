#include "workbench/core/host_call.h"
#include "workbench/supply/qrui_window.h"
#include "workbench/toolkit/link_widget.h"

#include <hostapi/qrui18/quick_start_link.h>

using workbench::HostCall;
using workbench::LinkWidget;

namespace {

constexpr int kCharacterWidth = 7;  // pixels, of the link font on average
constexpr int kTextMargin = 4;      // pixels at both sides together
constexpr int kHeight = 20;         // pixels

}  // namespace

BOOL CQrUiQuickStartLink::Create(const VxString& text, DWORD style, const CRect& rect,
                                 CWnd* parent) {
    HostCall call("CQrUiQuickStartLink::Create", {text, style, parent});
    if (call.failed())
        return call.returns(0);
    using namespace workbench::supply;
    auto creation = creationOf("CQrUiQuickStartLink", style, rect, parent, 0);
    creation.text = text;
    const bool made = createChild(*this, std::move(creation), std::make_unique<LinkWidget>());
    return call.returns(made ? 1 : 0);
}

void CQrUiQuickStartLink::SetTopic(const VxString& topic) {
    if (auto* const link = workbench::supply::windows().widgetOf<LinkWidget>(this))
        link->setTopic(topic);
}

void CQrUiQuickStartLink::SizeToContent() {
    const int width = static_cast<int>(GetWindowText().size()) * kCharacterWidth + kTextMargin;
    SetWindowPos(0, 0, width, kHeight, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}
