#pragma once

#include "workbench/base/value.h"
#include "workbench/drawing/database/colour.h"
#include "workbench/drawing/database/date_time.h"
#include "workbench/drawing/database/geometry.h"
#include "workbench/drawing/database/object_id.h"
#include "workbench/drawing/database/record_kind.h"

#include <string>
#include <vector>

namespace workbench::drawing {

class Database;

/// A reference to an object of one kind, or to none. Files and scripts tell it by name.
template <RecordKind Kind>
struct Ref {
    ObjectId id;

    Ref() = default;
    Ref(ObjectId object) : id(object) {}
    operator ObjectId() const { return id; }

    friend bool operator==(const Ref&, const Ref&) = default;
};

/// \name To a value
/// Members of records as files and scripts see them; the database gives the names of references.
/// @{
Value toValue(bool member, const Database& database);
Value toValue(int member, const Database& database);
Value toValue(double member, const Database& database);
Value toValue(const std::string& member, const Database& database);
Value toValue(const Vec3& member, const Database& database);
Value toValue(const Colour& member, const Database& database);
Value toValue(const DateTime& member, const Database& database);
/// @}

/// \name From a value
/// The other way; throw `ValueError` for a value that doesn't fit and for an unknown name.
/// @{
void fromValue(const Value& value, bool& member, const Database& database);
void fromValue(const Value& value, int& member, const Database& database);
void fromValue(const Value& value, double& member, const Database& database);
void fromValue(const Value& value, std::string& member, const Database& database);
void fromValue(const Value& value, Vec3& member, const Database& database);
void fromValue(const Value& value, Colour& member, const Database& database);
void fromValue(const Value& value, DateTime& member, const Database& database);
/// @}

/// Name of a living object; nil for a null id and for an object that is erased.
Value referenceValue(ObjectId id, const Database& database);

/// The object of the kind that the value names; a null id for nil. Throws `ValueError` for an
/// unknown name.
ObjectId resolveReference(RecordKind kind, const Value& value, const Database& database);

template <RecordKind Kind>
Value toValue(const Ref<Kind>& member, const Database& database) {
    return referenceValue(member.id, database);
}

template <RecordKind Kind>
void fromValue(const Value& value, Ref<Kind>& member, const Database& database) {
    member.id = resolveReference(Kind, value, database);
}

/// Members whose value is nil, references to what is gone, are left out.
template <class T>
Value toValue(const std::vector<T>& members, const Database& database) {
    Value::List list;
    for (const T& member : members) {
        Value value = toValue(member, database);
        if (!value.isNil()) {
            list.push_back(std::move(value));
        }
    }
    return list;
}

template <class T>
void fromValue(const Value& value, std::vector<T>& members, const Database& database) {
    members.clear();
    for (const Value& entry : value.asList()) {
        T member;
        fromValue(entry, member, database);
        members.push_back(std::move(member));
    }
}

}  // namespace workbench::drawing
