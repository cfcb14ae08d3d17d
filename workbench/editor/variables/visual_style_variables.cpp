#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/drawing/records/visual_style.h"
#include "workbench/editor/variables/drawing_access.h"

namespace workbench {

namespace {

using drawing::Viewport;
using drawing::VisualStyle;

/// A whole number or a truth of the style that the active viewport shows.
template <auto Member>
Value readStyle(const VariableScope& scope) {
    return readRecord<VisualStyle>(scope, drawing::activeVisualStyle, [](const VisualStyle& style) {
        return static_cast<int>(style.*Member);
    });
}

template <auto Member>
bool writeStyle(const VariableScope& scope, const Value& value) {
    const std::int64_t number = value.asInteger();
    return writeRecord<VisualStyle>(
        scope, drawing::activeVisualStyle, [number](VisualStyle& style) {
            style.*Member = static_cast<std::remove_reference_t<decltype(style.*Member)>>(number);
        });
}

Value readStyleName(const VariableScope& scope) {
    return readRecord<VisualStyle>(scope, drawing::activeVisualStyle,
                                   [](const VisualStyle& style) { return style.name; });
}

bool writeStyleName(const VariableScope& scope, const Value& value) {
    if (scope.database == nullptr)
        return false;
    const drawing::ObjectId style =
        scope.database->find(drawing::RecordKind::VisualStyle, value.asString());
    return !style.isNull() &&
           writeRecord<Viewport>(scope, drawing::activeViewport,
                                 [style](Viewport& viewport) { viewport.visualStyle = style; });
}

template <auto Member>
VariableDefinition styleVariable(const wchar_t* name, double least, double most) {
    return {.name = name,
            .home = VariableHome::Viewport,
            .range = {{least, most}},
            .get = readStyle<Member>,
            .set = writeStyle<Member>};
}

}  // namespace

void addVisualStyleVariables(VariableTable& table) {
    using Style = VisualStyle;
    table.insert(table.end(),
                 {
                     {.name = L"VSCURRENT",
                      .type = VariableType::String,
                      .home = VariableHome::Viewport,
                      .get = readStyleName,
                      .set = writeStyleName},
                     styleVariable<&Style::materialMode>(L"VSMATERIALMODE", 0, 2),
                     styleVariable<&Style::lightingQuality>(L"VSLIGHTINGQUALITY", 0, 2),
                     styleVariable<&Style::faceStyle>(L"VSFACESTYLE", 0, 2),
                     styleVariable<&Style::faceColorMode>(L"VSFACECOLORMODE", 0, 3),
                     styleVariable<&Style::faceOpacity>(L"VSFACEOPACITY", -100, 100),
                     styleVariable<&Style::shadows>(L"VSSHADOWS", 0, 2),
                     styleVariable<&Style::edges>(L"VSEDGES", 0, 2),
                     styleVariable<&Style::edgeOverhang>(L"VSEDGEOVERHANG", -100, 100),
                     styleVariable<&Style::edgeJitter>(L"VSEDGEJITTER", -3, 3),
                     styleVariable<&Style::edgeWidth>(L"VSEDGEWIDTH", 1, 25),
                     styleVariable<&Style::silhouetteEdges>(L"VSSILHEDGES", 0, 1),
                     styleVariable<&Style::silhouetteWidth>(L"VSSILHWIDTH", -25, 25),
                     styleVariable<&Style::obscuredEdges>(L"VSOBSCUREDEDGES", 0, 1),
                     styleVariable<&Style::intersectionEdges>(L"VSINTERSECTIONEDGES", 0, 1),
                 });
}

}  // namespace workbench
