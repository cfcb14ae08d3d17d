#include "workbench/drawing/layer_overrides.h"
#include "workbench/drawing/records/current.h"
#include "workbench/drawing/records/layer.h"
#include "workbench/editor/variables/drawing_access.h"

namespace workbench {

namespace {

using drawing::Current;
using drawing::Layer;
using drawing::RecordKind;

drawing::ObjectId currentRecord(const drawing::Database& database) {
    return database.first(RecordKind::Current);
}

Value readLayer(const VariableScope& scope) {
    return readRecord<Layer>(
        scope,
        [](const drawing::Database& database) {
            const auto* current = database.look<Current>(currentRecord(database));
            return current == nullptr ? drawing::ObjectId() : current->layer.id;
        },
        [](const Layer& layer) { return layer.name; });
}

bool writeLayer(const VariableScope& scope, const Value& value) {
    if (scope.database == nullptr)
        return false;
    const drawing::Database& database = *scope.database;
    const drawing::ObjectId id = database.find(RecordKind::Layer, value.asString());
    const auto* layer = database.look<Layer>(id);
    // Work can't go on on a frozen layer, so it can't become the current one.
    return layer != nullptr && !layer->frozen &&
           writeRecord<Current>(scope, currentRecord,
                                [id](Current& current) { current.layer = id; });
}

Value readOverrides(const VariableScope& scope) {
    if (scope.database == nullptr)
        return {};
    return drawing::activeViewportHasOverrides(*scope.database) ? 1 : 0;
}

}  // namespace

void addLayerVariables(VariableTable& table) {
    using enum VariableType;
    using enum VariableHome;
    table.insert(
        table.end(),
        {
            {.name = L"CLAYER",
             .type = String,
             .home = Record,
             .get = readLayer,
             .set = writeLayer},
            // Percent; negative while locked layers are not faded.
            {.name = L"LAYLOCKFADECTL", .home = Profile, .initial = 50, .range = {{-90, 90}}},
            // How new layers are looked over: 0 not at all, 1 those of referenced drawings, 2 all.
            {.name = L"LAYEREVAL", .initial = 0, .range = {{0, 2}}},
            // 0: the drawing is not drawn anew by itself after a change of layers.
            {.name = L"REGENMODE", .initial = 1, .range = {{0, 1}}},
            // Whether layers look other in the active viewport.
            {.name = L"VPLAYEROVERRIDES", .home = Computed, .readOnly = true, .get = readOverrides},
        });
}

}  // namespace workbench
