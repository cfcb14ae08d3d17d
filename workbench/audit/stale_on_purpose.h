#pragma once

#include "workbench/audit/audit.h"
#include "workbench/audit/host_state.h"

namespace workbench {

/// Whether something that isn't shown as it is is meant to be so.
bool isStaleOnPurpose(const AuditFinding& finding, const HostState& host);

}  // namespace workbench
