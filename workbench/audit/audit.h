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

/// Something on show that doesn't agree with the host's state for a while, as it should.
struct StaleFinding {
    AuditFinding finding;
    std::string reason;  ///< Why it is meant to be so.
};

/// What an audit has found; nothing stands in both lists.
struct AuditResult {
    std::vector<AuditFinding> findings;
    std::vector<StaleFinding> stale;
};

/// Compares every control and tool on the screen that has a rule with the state of the host, which
/// should be at rest.
AuditResult auditWithStale(Workbench& workbench);

/// The findings alone, without what is stale on purpose. Empty when all agree.
std::vector<AuditFinding> audit(Workbench& workbench);

/// Whether there is a rule for controls of a name.
bool hasAuditRule(const std::string& control);

}  // namespace workbench
