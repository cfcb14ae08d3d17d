#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/sun.h"
#include "workbench/editor/variables/drawing_access.h"
#include "workbench/editor/variables/sky_status.h"

namespace workbench {

namespace {

using drawing::Sun;

Value readSunStatus(const VariableScope& scope) {
    return readRecord<Sun>(scope, activeOrOnlySun, [](const Sun& sun) { return sun.on ? 1 : 0; });
}

bool writeSunStatus(const VariableScope& scope, const Value& value) {
    if (scope.database == nullptr)
        return false;
    ensureSun(*scope.database);
    const bool on = value.asInteger() != 0;
    return writeRecord<Sun>(scope, activeOrOnlySun, [on](Sun& sun) { sun.on = on; });
}

Value readSkyStatusOf(const VariableScope& scope) {
    return scope.database == nullptr ? Value() : Value(readSkyStatus(*scope.database));
}

bool writeSkyStatusOf(const VariableScope& scope, const Value& value) {
    return scope.database != nullptr &&
           writeSkyStatus(*scope.database, static_cast<int>(value.asInteger()));
}

}  // namespace

void addLightVariables(VariableTable& table) {
    using enum VariableHome;
    table.insert(table.end(), {
                                  {.name = L"DEFAULTLIGHTING", .initial = 1, .range = {{0, 1}}},
                                  {.name = L"LIGHTGLYPHDISPLAY", .initial = 1, .range = {{0, 1}}},
                                  // 0 generic, 1 American, 2 international units.
                                  {.name = L"LIGHTINGUNITS", .initial = 2, .range = {{0, 2}}},
                                  {.name = L"SUNSTATUS",
                                   .home = Viewport,
                                   .range = {{0, 1}},
                                   .get = readSunStatus,
                                   .set = writeSunStatus},
                                  {.name = L"SKYSTATUS",
                                   .home = Viewport,
                                   .range = {{0, 2}},
                                   .get = readSkyStatusOf,
                                   .set = writeSkyStatusOf},
                              });
}

}  // namespace workbench
