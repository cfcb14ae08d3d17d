#include "workbench/editor/variables/variable_definition.h"

#include "workbench/base/text.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace workbench {

namespace {

template <class Whole>
std::optional<Value> fitToWhole(double number) {
    const double cut = std::trunc(number);
    if (!(cut >= std::numeric_limits<Whole>::min() && cut <= std::numeric_limits<Whole>::max()))
        return {};
    return Value(static_cast<std::int64_t>(cut));
}

}  // namespace

const VariableTable& variableTable() {
    static const VariableTable kTable = [] {
        VariableTable table;
        addSessionVariables(table);
        addSpaceVariables(table);
        addObjectVariables(table);
        addUnitVariables(table);
        addTextVariables(table);
        addLayerVariables(table);
        addNavigationVariables(table);
        addLightVariables(table);
        addVisualStyleVariables(table);
        return table;
    }();
    return kTable;
}

const VariableDefinition* findVariable(std::wstring_view name) {
    const VariableTable& table = variableTable();
    const auto found = std::find_if(
        table.begin(), table.end(),
        [name](const VariableDefinition& variable) { return equalNoCase(variable.name, name); });
    return found == table.end() ? nullptr : &*found;
}

const Value& valueIn(const VariableValues& values, const VariableDefinition& variable) {
    const auto found = values.find(&variable);
    return found == values.end() ? variable.initial : found->second;
}

std::optional<Value> fitToType(VariableType type, const Value& value) {
    if (type == VariableType::String)
        return value.isString() ? std::optional<Value>(value) : std::nullopt;
    if (value.isBool())
        return fitToType(type, Value(value.asBool() ? 1 : 0));
    if (!value.isNumber())
        return {};
    const double number = value.asReal();
    if (type == VariableType::Real)
        return std::isfinite(number) ? std::optional<Value>(number) : std::nullopt;
    return type == VariableType::Short ? fitToWhole<std::int16_t>(number)
                                       : fitToWhole<std::int32_t>(number);
}

bool isInRange(const VariableDefinition& variable, const Value& value) {
    if (!variable.range || !value.isNumber())
        return true;
    return value.asReal() >= variable.range->least && value.asReal() <= variable.range->most;
}

}  // namespace workbench
