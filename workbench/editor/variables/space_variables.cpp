#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/current.h"
#include "workbench/drawing/records/layout.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/editor/variables/drawing_access.h"

namespace workbench {

namespace {

using drawing::Current;
using drawing::Database;
using drawing::Layout;
using drawing::ObjectId;
using drawing::RecordKind;

ObjectId currentRecord(const Database& database) {
    return database.first(RecordKind::Current);
}

Value readTileMode(const VariableScope& scope) {
    return readRecord<Current>(scope, currentRecord,
                               [](const Current& current) { return current.tileMode ? 1 : 0; });
}

bool writeTileMode(const VariableScope& scope, const Value& value) {
    const bool tiles = value.asInteger() != 0;
    return writeRecord<Current>(scope, currentRecord,
                                [tiles](Current& current) { current.tileMode = tiles; });
}

bool isInTiles(const VariableScope& scope) {
    return scope.database != nullptr && drawing::activeLayout(*scope.database).isNull();
}

Value readViewport(const VariableScope& scope) {
    if (isInTiles(scope))
        return readRecord<Current>(scope, currentRecord,
                                   [](const Current& current) { return current.modelViewport; });
    return readRecord<Layout>(scope, drawing::activeLayout,
                              [](const Layout& layout) { return layout.currentViewport; });
}

/// The sheet of a layout is always there to work on.
bool hasViewport(const VariableScope& scope, int number) {
    if (scope.database == nullptr)
        return false;
    const ObjectId layout = drawing::activeLayout(*scope.database);
    return !drawing::findViewport(*scope.database, layout, number).isNull() ||
           (!layout.isNull() && number == drawing::Viewport::kPaperNumber);
}

bool writeViewport(const VariableScope& scope, const Value& value) {
    const int number = static_cast<int>(value.asInteger());
    if (!hasViewport(scope, number))
        return false;
    if (isInTiles(scope))
        return writeRecord<Current>(scope, currentRecord,
                                    [number](Current& current) { current.modelViewport = number; });
    return writeRecord<Layout>(scope, drawing::activeLayout,
                               [number](Layout& layout) { layout.currentViewport = number; });
}

}  // namespace

void addSpaceVariables(VariableTable& table) {
    using enum VariableHome;
    table.insert(
        table.end(),
        {
            {.name = L"TILEMODE",
             .home = Record,
             .range = {{0, 1}},
             .get = readTileMode,
             .set = writeTileMode},
            {.name = L"CVPORT",
             .home = Record,
             .range = {{1, 32767}},
             .get = readViewport,
             .set = writeViewport},
            {.name = L"BLOCKEDITOR", .home = Document, .range = {{0, 1}}, .readOnly = true},
        });
}

}  // namespace workbench
