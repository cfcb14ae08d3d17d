#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/editor/variables/drawing_access.h"

namespace workbench {

namespace {

using drawing::Viewport;

Value readPerspective(const VariableScope& scope) {
    return readRecord<Viewport>(scope, drawing::activeViewport, [](const Viewport& viewport) {
        return viewport.view.perspective ? 1 : 0;
    });
}

bool writePerspective(const VariableScope& scope, const Value& value) {
    const bool perspective = value.asInteger() != 0;
    return writeRecord<Viewport>(scope, drawing::activeViewport, [perspective](Viewport& viewport) {
        if (viewport.view.perspective == perspective)
            return;
        viewport.view.perspective = perspective;
        viewport.appliedView = {};
    });
}

/// 30, and what rounding may add to it.
constexpr double kMostStepsPerSec = 30.0 + 1.0e-9;

}  // namespace

void addNavigationVariables(VariableTable& table) {
    using enum VariableType;
    using enum VariableHome;
    table.insert(table.end(),
                 {
                     {.name = L"PERSPECTIVE",
                      .home = Viewport,
                      .range = {{0, 1}},
                      .get = readPerspective,
                      .set = writePerspective},
                     {.name = L"STEPSIZE", .type = Real, .initial = 6.0, .range = {{1e-6, 1e6}}},
                     {.name = L"STEPSPERSEC",
                      .type = Real,
                      .initial = 2.0,
                      .range = {{1.0, kMostStepsPerSec}}},
                     {.name = L"CAMERADISPLAY", .initial = 0, .range = {{0, 1}}},
                 });
}

}  // namespace workbench
