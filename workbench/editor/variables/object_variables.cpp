#include "workbench/editor/variables/variable_definition.h"

namespace workbench {

void addObjectVariables(VariableTable& table) {
    using enum VariableType;
    table.insert(table.end(), {
                                  {.name = L"CECOLOR", .type = String, .initial = "ByLayer"},
                                  {.name = L"CELTYPE", .type = String, .initial = "ByLayer"},
                                  {.name = L"CELWEIGHT", .type = String, .initial = "ByLayer"},
                                  {.name = L"CPLOTSTYLE", .type = String, .initial = "ByLayer"},
                                  {.name = L"CUCS", .type = String, .initial = "World"},
                                  {.name = L"CDIMSTYLE", .type = String, .initial = "Standard"},
                                  {.name = L"CTABLESTYLE", .type = String, .initial = "Standard"},
                                  {.name = L"CLEADERSTYLE", .type = String, .initial = "Standard"},
                                  // Whether names may be long.
                                  {.name = L"EXTNAMES", .initial = 1, .range = {{0, 1}}},
                              });
}

}  // namespace workbench
