#include "workbench/editor/variables/variable_definition.h"

namespace workbench {

void addUnitVariables(VariableTable& table) {
    using enum VariableType;
    table.insert(table.end(),
                 {
                     {.name = L"LUNITS", .initial = 2, .range = {{1, 5}}},
                     {.name = L"LUPREC", .initial = 4, .range = {{0, 8}}},
                     {.name = L"AUNITS", .initial = 0, .range = {{0, 4}}},
                     {.name = L"AUPREC", .initial = 0, .range = {{0, 8}}},
                     {.name = L"LTSCALE", .type = Real, .initial = 1.0, .range = {{1e-9, 1e99}}},
                 });
}

}  // namespace workbench
