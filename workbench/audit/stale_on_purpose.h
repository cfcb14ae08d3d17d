#pragma once

#include "workbench/audit/audit.h"
#include "workbench/audit/host_state.h"

namespace workbench {

/// Why something that isn't shown as it is is meant to be so; null if it isn't.
const char* reasonToBeStale(const AuditFinding& finding, const HostState& host);

}  // namespace workbench
