#include "workbench/editor/variables/variable_definition.h"

namespace workbench {

void addObjectVariables(VariableTable& table) {
    using enum VariableType;
    table.insert(table.end(), {
                                  {.name = L"CECOLOR", .type = String, .initial = "ByLayer"},
                                  {.name = L"CELTYPE", .type = String, .initial = "ByLayer"},
                                  {.name = L"CELWEIGHT", .type = String, .initial = "ByLayer"},
                              });
}

}  // namespace workbench
