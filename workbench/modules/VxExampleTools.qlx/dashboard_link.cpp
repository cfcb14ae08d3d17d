#include "workbench/modules/VxExampleTools.qlx/dashboard_link.h"

#include "workbench/modules/VxExampleTools.qlx/click_counter.h"

#include <hostapi/window/module.h>

namespace {

constexpr const wchar_t* kDashboard = L"VxDashboard.qlx";
constexpr int kAdd = 1;
constexpr int kRemove = 0;

template <class Function>
Function find(const char* name) {
    const HINSTANCE dashboard = GetModuleHandle(kDashboard);
    return dashboard == nullptr ? nullptr
                                : reinterpret_cast<Function>(GetProcAddress(dashboard, name));
}

void tellDashboard(VxDaDashboardReactor* listener, int add) {
    if (const auto function = find<VxDaAddOrRemoveReactorFn>("VxDaAddOrRemoveReactor"))
        function(listener, add);
}

}  // namespace

DashboardLink::DashboardLink(ClickCounter& counter) : m_counter(counter) {
    tellDashboard(this, kAdd);
}

DashboardLink::~DashboardLink() {
    tellDashboard(this, kRemove);
}

HWND DashboardLink::makeControl(const wchar_t* name, HWND parent) {
    const auto function = find<VxDaGetCustomControlFn>("VxDaGetCustomControl");
    return function == nullptr ? nullptr : function(name, parent);
}

void DashboardLink::panelsUnloaded() {
    m_counter.reset();
}
