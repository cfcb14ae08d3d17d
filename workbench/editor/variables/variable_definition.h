#pragma once

#include "workbench/base/value.h"
#include "workbench/drawing/database/database.h"
#include "workbench/editor/variables/variable_session.h"

#include <map>
#include <optional>
#include <string_view>
#include <vector>

namespace workbench {

/// What kind of value a system variable has.
enum class VariableType { Short, Long, Real, String };

/// Where the value of a system variable lives.
enum class VariableHome {
    Session,   ///< in the editor, as long as it runs
    Profile,   ///< in the user's profile
    Document,  ///< with the document, apart from undo
    Drawing,   ///< with the document, and taken back by undo
    Record,    ///< in a record of the drawing, which can change without the variable being written
    Viewport,  ///< in what the active viewport shows; another viewport's value is no change
    Computed,  ///< nowhere: worked out when it is read, and changing without events
};

/// What the value of a variable depends on.
struct VariableScope {
    const VariableSession& session;
    drawing::Database* database;  ///< not owned; null while there is no current document
};

/// The numbers that a variable takes, both ends included.
struct VariableRange {
    double least;
    double most;
};

/// Another variable's value that a write of one brings with it.
struct ImpliedValue {
    const wchar_t* variable;
    Value value;
};

/// One system variable, a row of its family's table.
struct VariableDefinition {
    using Get = Value (*)(const VariableScope&);
    using Set = bool (*)(const VariableScope&, const Value&);
    using Implied = std::optional<ImpliedValue> (*)(const VariableScope&);

    const wchar_t* name;  ///< the spelling that events carry
    VariableType type = VariableType::Short;
    VariableHome home = VariableHome::Drawing;
    Value initial = 0;
    std::optional<VariableRange> range = {};  ///< nothing: whatever the type can hold
    bool readOnly = false;                    ///< only the host itself writes it
    /// For the last three homes: the value, nil if it can't be had now.
    Get get = nullptr;
    /// For the last three homes: writes the value; false if that is not possible now. Null: it
    /// can't be written by anyone.
    Set set = nullptr;
    /// What has to follow once the variable was written, as part of the same step of undo; nothing for
    /// nothing. Null: never anything.
    Implied implied = nullptr;
};

using VariableTable = std::vector<VariableDefinition>;

/// \name The families
/// Each appends its variables to the table.
/// @{
void addSessionVariables(VariableTable& table);
void addLayerVariables(VariableTable& table);
void addLightVariables(VariableTable& table);
void addNavigationVariables(VariableTable& table);
void addSpaceVariables(VariableTable& table);
void addTextVariables(VariableTable& table);
void addObjectVariables(VariableTable& table);
void addUnitVariables(VariableTable& table);
void addVisualStyleVariables(VariableTable& table);
/// @}

/// All system variables.
const VariableTable& variableTable();
/// The variable of a name, without regard to case; null for none.
const VariableDefinition* findVariable(std::wstring_view name);

/// The values of variables, as far as they were written.
using VariableValues = std::map<const VariableDefinition*, Value>;
/// The written value of a variable, its initial one if there is none.
const Value& valueIn(const VariableValues& values, const VariableDefinition& variable);

/// The value as the variable would hold it: of its type, with a number's fraction cut off where the
/// type has none. Nothing for a value that the type can't hold.
std::optional<Value> fitToType(VariableType type, const Value& value);
/// Whether a fitted value is within the variable's range.
bool isInRange(const VariableDefinition& variable, const Value& value);

}  // namespace workbench
