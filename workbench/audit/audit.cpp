#include "workbench/audit/audit.h"

#include "workbench/audit/control_rules.h"
#include "workbench/audit/stale_on_purpose.h"
#include "workbench/audit/tool_rules.h"
#include "workbench/base/text.h"
#include "workbench/host/workbench.h"
#include "workbench/toolkit/tool_panel_item_record.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace workbench {

namespace {

const std::vector<ControlRule>& controlRules() {
    static const std::vector<ControlRule> rules = [] {
        std::vector<ControlRule> all;
        for (const auto family : {layerRules, navigationRules, textRules, hostListRules}) {
            std::vector<ControlRule> some = family();
            all.insert(all.end(), some.begin(), some.end());
        }
        return all;
    }();
    return rules;
}

const ControlRule* findRule(std::string_view control) {
    const auto& rules = controlRules();
    const auto found = std::find_if(rules.begin(), rules.end(), [control](const ControlRule& rule) {
        return rule.control == control;
    });
    return found == rules.end() ? nullptr : &*found;
}

const ToolRule* findRule(std::wstring_view tool) {
    const auto& rules = toolRules();
    const auto found = std::find_if(rules.begin(), rules.end(),
                                    [tool](const ToolRule& rule) { return rule.tool == tool; });
    return found == rules.end() ? nullptr : &*found;
}

void auditControls(const HostState& host, std::vector<AuditFinding>& findings) {
    const WindowSystem& windows = host.workbench().windows();
    for (const HWND top : windows.topWindows()) {
        for (const HWND handle : windows.descendants(top)) {
            const ControlRule* const rule = findRule(windows.find(handle)->name);
            if (rule == nullptr || !windows.isOnScreen(handle))
                continue;
            const ShownControl control(windows, handle);
            AuditReport report(control.name(), findings);
            rule->compare(control, host, report);
        }
    }
}

void auditTools(const HostState& host, std::vector<AuditFinding>& findings) {
    Toolkit& toolkit = host.workbench().toolkit();
    for (const CQrUiToolPanelItem* item : allItems(toolkit.windows())) {
        const ToolRule* const rule = findRule(std::wstring_view(knownId(*item)));
        const CQrUiToolPanel* const panel = toolPanelOf(*item);
        if (rule == nullptr || panel == nullptr || !toolkit.windows().isOnScreen(panel->m_hWnd))
            continue;
        AuditReport report(toUtf8(knownId(*item)), findings);
        rule->compare(viewOf(toolkit, *item), host, report);
    }
}

}  // namespace

AuditResult auditWithStale(Workbench& workbench) {
    const HostState host(workbench);
    AuditResult result;
    if (!host.hasDocument())
        return result;  // what was shown last stays when the last drawing has gone
    std::vector<AuditFinding> all;
    auditControls(host, all);
    auditTools(host, all);
    for (AuditFinding& finding : all) {
        if (const char* const reason = reasonToBeStale(finding, host))
            result.stale.push_back({std::move(finding), reason});
        else
            result.findings.push_back(std::move(finding));
    }
    return result;
}

std::vector<AuditFinding> audit(Workbench& workbench) {
    return auditWithStale(workbench).findings;
}

bool hasAuditRule(const std::string& control) {
    return findRule(std::string_view(control)) != nullptr;
}

}  // namespace workbench
