#include "workbench/base/text.h"
#include "workbench/editor/variables/variable_definition.h"

#include <cstdint>

namespace workbench {

namespace {

Value readActive(const VariableScope& scope) {
    return scope.session.commandActivity();
}

Value readActiveNames(const VariableScope& scope) {
    return toUtf8(scope.session.commandNames());
}

Value readDrawingName(const VariableScope& scope) {
    return toUtf8(scope.session.documentName());
}

Value readProfileName(const VariableScope& scope) {
    return scope.session.profileName();
}

Value readUndoSteps(const VariableScope& scope) {
    return scope.database == nullptr
               ? Value()
               : Value(static_cast<std::int64_t>(scope.database->undoLog().undoCount()));
}

}  // namespace

void addSessionVariables(VariableTable& table) {
    using enum VariableType;
    using enum VariableHome;
    table.insert(
        table.end(),
        {
            {.name = L"CMDACTIVE", .home = Computed, .readOnly = true, .get = readActive},
            {.name = L"CMDNAMES",
             .type = String,
             .home = Computed,
             .readOnly = true,
             .get = readActiveNames},
            {.name = L"CPROFILE",
             .type = String,
             .home = Computed,
             .readOnly = true,
             .get = readProfileName},
            {.name = L"DWGNAME",
             .type = String,
             .home = Computed,
             .readOnly = true,
             .get = readDrawingName},
            // How many steps can be taken back.
            {.name = L"UNDOSTEPS",
             .type = Long,
             .home = Computed,
             .readOnly = true,
             .get = readUndoSteps},
            {.name = L"CleanScreenState", .home = Session, .range = {{0, 1}}, .readOnly = true},
            {.name = L"DASHBOARDSTATE", .home = Session, .range = {{0, 1}}, .readOnly = true},
        });
}

}  // namespace workbench
