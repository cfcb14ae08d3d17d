#include "workbench/audit/control_rules.h"
#include "workbench/drawing/layer_state_operations.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/current.h"
#include "workbench/drawing/records/layer_filters.h"
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

/// The filter in force; all layers for that of viewport overrides while there are none.
std::string filterToShow(const drawing::Database& drawing, bool hasOverrides) {
    using drawing::FilterKind;
    const auto* const filters =
        drawing.look<drawing::LayerFilters>(drawing.first(drawing::RecordKind::LayerFilters));
    const drawing::LayerFilter* const current = findFilter(filters->root, filters->current);
    if (current == nullptr || (current->kind == FilterKind::Overrides && !hasOverrides))
        return filters->root.name;
    return current->name;
}

void compareFilter(const ShownControl& control, const HostState& host, AuditReport& report) {
    const bool hasOverrides = host.whole(L"VPLAYEROVERRIDES") != 0;
    report.compare("text", control.choice(), filterToShow(*host.drawing(), hasOverrides));
}

/// The state that was restored last, if the layers still are as it says.
std::string stateInForce(const drawing::Database& drawing) {
    const auto* const current =
        drawing.look<drawing::Current>(drawing.first(drawing::RecordKind::Current));
    const drawing::ObjectId state =
        drawing.find(drawing::RecordKind::LayerState, current->layerState);
    if (state.isNull() || !matchesLayerState(drawing, state, activeViewport(drawing)))
        return "Unsaved Layer State";
    return current->layerState;
}

void compareStates(const ShownControl& control, const HostState& host, AuditReport& report) {
    report.compare("selected", control.choice(), stateInForce(*host.drawing()));
}

}  // namespace

std::vector<ControlRule> layerRules() {
    return {{"LayerLockTransparencySliderControl", compareFade},
            {"LayerFilterComboControl", compareFilter},
            {"LayerStateComboControl", compareStates}};
}

}  // namespace workbench
