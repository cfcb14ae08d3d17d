#include "workbench/core/host_call.h"
#include "workbench/supply/qrui_window.h"
#include "workbench/toolkit/button_widget.h"
#include "workbench/toolkit/dropdowns.h"

#include <hostapi/window/button.h>

#include <memory>
#include <utility>

BOOL CButton::Create(const wchar_t* text, DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    workbench::HostCall call("CButton::Create",
                             {text, style, rect.Width(), rect.Height(), parent, id});
    if (call.failed() || parent == nullptr)
        return call.returns(0);
    using namespace workbench::supply;
    auto creation = creationOf("CButton", style, rect, parent, id);
    creation.text = text == nullptr ? VxString() : VxString(text);
    creation.name = workbench::nameOfDropdownPart(windows(), creation.parent, "check");
    const bool made = createChild(*this, std::move(creation),
                                  std::make_unique<workbench::ButtonWidget>(toolkit()));
    return call.returns(made ? 1 : 0);
}

void CButton::DrawItem(const DRAWITEMSTRUCT*) {}
