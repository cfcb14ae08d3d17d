#include "core/roof.h"

#include <utility>

namespace {

DashboardRoof* s_dashboardRoof = nullptr;  // not owned
ControlRoof* s_controlRoof = nullptr;      // not owned

}  // namespace

DashboardRoof* dashboardRoof() {
    return s_dashboardRoof;
}

ControlRoof* controlRoof() {
    return s_controlRoof;
}

void setDashboardRoof(DashboardRoof* roof) {
    s_dashboardRoof = roof;
}

void setControlRoof(ControlRoof* roof) {
    s_controlRoof = roof;
}

bool isDashboardVisible() {
    return s_dashboardRoof != nullptr && s_dashboardRoof->isDashboardVisible();
}

CVxDaPanelSet* currentPanelSet() {
    return s_dashboardRoof == nullptr ? nullptr : s_dashboardRoof->panelSet();
}

void runWhenQuiescent(std::unique_ptr<QuiescentAction> action) {
    if (s_controlRoof != nullptr)
        s_controlRoof->runWhenQuiescent(std::move(action));
}
