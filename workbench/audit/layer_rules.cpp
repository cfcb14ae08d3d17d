#include "workbench/audit/control_rules.h"
#include "workbench/toolkit/slider_widget.h"

#include <cstdlib>

namespace workbench {

namespace {

/// A fade below 0 is one that is switched off; its amount is shown all the same.
void compareFade(const ShownControl& control, const HostState& host, AuditReport& report) {
    const int fade = host.whole(L"LAYLOCKFADECTL");
    report.comparePosition("slider", control.slider()->position(), std::abs(fade));
    report.compare("edit", control.text("edit"), std::to_string(std::abs(fade)) + "%");
    const bool enabled = fade >= 0 && !host.isCommandRunning();
    report.compareFlag("slider.enabled", control.isEnabled("slider"), enabled);
    report.compareFlag("edit.enabled", control.isEnabled("edit"), enabled);
}

}  // namespace

std::vector<ControlRule> layerRules() {
    return {{"LayerLockTransparencySliderControl", compareFade}};
}

}  // namespace workbench
