#pragma once

#include "workbench/audit/audit.h"

#include <optional>
#include <string>
#include <vector>

namespace workbench {

/// What an audit finds for one control or tool.
class AuditReport {
public:
    /// Findings go to the end of `findings`, which must outlive the report.
    AuditReport(std::string control, std::vector<AuditFinding>& findings)
        : m_control(std::move(control)),
          m_findings(findings) {}

    /// Notes a field that isn't shown as expected; one that isn't there is shown as "none".
    void compare(const char* field, const std::optional<std::string>& shown,
                 const std::string& expected) {
        const std::string present = shown.value_or("none");
        if (present != expected)
            m_findings.push_back({m_control, field, present, expected});
    }
    void compareFlag(const char* field, std::optional<bool> shown, bool expected) {
        compare(field, shown ? std::optional(words(*shown)) : std::nullopt, words(expected));
    }
    void comparePosition(const char* field, int shown, int expected) {
        compare(field, std::to_string(shown), std::to_string(expected));
    }

private:
    static std::string words(bool value) { return value ? "true" : "false"; }

    std::string m_control;
    std::vector<AuditFinding>& m_findings;
};

}  // namespace workbench
