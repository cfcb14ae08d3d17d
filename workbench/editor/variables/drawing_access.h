#pragma once

#include "workbench/drawing/database/database.h"
#include "workbench/editor/variables/variable_definition.h"

namespace workbench {

/// The value of a record's member as a variable shows it; nil without a document or without the
/// record. `find` names the record in the database, `read` gives the value.
template <class Data, class Find, class Read>
Value readRecord(const VariableScope& scope, Find find, Read read) {
    if (scope.database == nullptr)
        return {};
    drawing::Database& database = *scope.database;
    const Data* record = database.look<Data>(find(database));
    return record == nullptr ? Value() : Value(read(*record));
}

/// Changes a record for a variable; false without a document, without the record, or while it
/// can't be opened for write. A record that would stay as it is isn't opened.
template <class Data, class Find, class Write>
bool writeRecord(const VariableScope& scope, Find find, Write write) {
    if (scope.database == nullptr)
        return false;
    drawing::Database& database = *scope.database;
    const drawing::ObjectId id = find(database);
    const Data* present = database.look<Data>(id);
    if (present == nullptr)
        return false;
    Data changed = *present;
    write(changed);
    if (changed == *present)
        return true;
    drawing::Writing<Data> writing(database, id);
    if (!writing)
        return false;
    *writing = std::move(changed);
    return true;
}

}  // namespace workbench
