#include "workbench/core/host_call.h"
#include "workbench/supply/qrui_window.h"
#include "workbench/toolkit/container_widget.h"

#include <hostapi/qrui18/ctrl_container.h>

#include <memory>

using workbench::ContainerWidget;
using workbench::HostCall;
using workbench::supply::windows;

namespace {

ContainerWidget* widgetOf(const CWnd& container) {
    return windows().widgetOf<ContainerWidget>(&container);
}

}  // namespace

CQrUiCtrlContainer::~CQrUiCtrlContainer() = default;

BOOL CQrUiCtrlContainer::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    HostCall call("CQrUiCtrlContainer::Create", {style, parent, id});
    if (call.failed())
        return call.returns(0);
    using namespace workbench::supply;
    auto creation = creationOf("CQrUiCtrlContainer", style, rect, parent, id);
    const bool made =
        createChild(*this, std::move(creation), std::make_unique<ContainerWidget>(windows()));
    return call.returns(made ? 1 : 0);
}

void CQrUiCtrlContainer::AddItem(CWnd* control) {
    std::unique_ptr<CWnd> taken(control);
    if (ContainerWidget* const container = widgetOf(*this); container != nullptr && taken)
        container->add(*windows().find(m_hWnd), std::move(taken));
}

int CQrUiCtrlContainer::GetItemCount() const {
    const ContainerWidget* const container = widgetOf(*this);
    return container == nullptr ? 0 : container->count();
}

CWnd* CQrUiCtrlContainer::GetItem(int index) const {
    const ContainerWidget* const container = widgetOf(*this);
    return container == nullptr ? nullptr : container->control(index);
}

void CQrUiCtrlContainer::SetMargin(int pixels) {
    if (ContainerWidget* const container = widgetOf(*this))
        container->setMargin(*windows().find(m_hWnd), pixels);
}
