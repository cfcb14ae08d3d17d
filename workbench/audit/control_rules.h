#pragma once

#include "workbench/audit/audit_report.h"
#include "workbench/audit/host_state.h"
#include "workbench/audit/shown_control.h"

#include <string_view>
#include <vector>

namespace workbench {

/// How controls of a name are compared with the host's state.
struct ControlRule {
    std::string_view control;
    void (*compare)(const ShownControl& control, const HostState& host, AuditReport& report);
};

/// The rules of each family.
std::vector<ControlRule> layerRules();
std::vector<ControlRule> navigationRules();
std::vector<ControlRule> textRules();
std::vector<ControlRule> hostListRules();

}  // namespace workbench
