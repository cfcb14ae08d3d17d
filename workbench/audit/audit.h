#pragma once

#include <string>
#include <vector>

namespace workbench {

class Workbench;

/// Something on show that doesn't agree with the host's state.
struct AuditFinding {
    std::string control;  ///< Name of the control, or ID of the tool.
    std::string field;    ///< Its part, such as "slider", "edit" or "checked".
    std::string shown;
    std::string expected;

    friend bool operator==(const AuditFinding&, const AuditFinding&) = default;
};

/// Compares every control and tool on the screen that has a rule with the state of the host, which
/// should be at rest. What is stale on purpose is left out. Empty when all agree.
std::vector<AuditFinding> audit(Workbench& workbench);

/// Whether there is a rule for controls of a name.
bool hasAuditRule(const std::string& control);

}  // namespace workbench
