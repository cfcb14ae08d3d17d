#pragma once

#include "workbench/audit/audit_report.h"
#include "workbench/audit/host_state.h"
#include "workbench/toolkit/lookup.h"

#include <string_view>
#include <vector>

namespace workbench {

/// How tools of an ID are compared with the host's state.
struct ToolRule {
    std::wstring_view tool;
    void (*compare)(const ItemView& tool, const HostState& host, AuditReport& report);
};

/// The rules of all tools whose state follows the host's.
const std::vector<ToolRule>& toolRules();

}  // namespace workbench
