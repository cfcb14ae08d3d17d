#include "workbench/drawing/database/value_conversion.h"

#include "workbench/drawing/database/database.h"

#include <cmath>
#include <limits>

namespace workbench::drawing {

Value toValue(bool member, const Database& /*database*/) {
    return member;
}

Value toValue(int member, const Database& /*database*/) {
    return member;
}

Value toValue(double member, const Database& /*database*/) {
    return member;
}

Value toValue(const std::string& member, const Database& /*database*/) {
    return member;
}

Value toValue(const Vec3& member, const Database& /*database*/) {
    return Value::List{member.x, member.y, member.z};
}

Value toValue(const Colour& member, const Database& /*database*/) {
    return colourValue(member);
}

Value toValue(const DateTime& member, const Database& /*database*/) {
    return dateTimeText(member);
}

void fromValue(const Value& value, bool& member, const Database& /*database*/) {
    member = value.asBool();
}

void fromValue(const Value& value, int& member, const Database& /*database*/) {
    const std::int64_t number = value.asInteger();
    if (number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max()) {
        throw ValueError(value.describe() + " is too large");
    }
    member = static_cast<int>(number);
}

void fromValue(const Value& value, double& member, const Database& /*database*/) {
    const double number = value.asReal();
    if (!std::isfinite(number)) {
        throw ValueError("expected a finite number, got " + value.describe());
    }
    member = number;
}

void fromValue(const Value& value, std::string& member, const Database& /*database*/) {
    member = value.asString();
}

void fromValue(const Value& value, Vec3& member, const Database& database) {
    const Value::List& list = value.asList();
    if (list.size() != 3) {
        throw ValueError("expected a point of 3 numbers, got " + std::to_string(list.size()));
    }
    fromValue(list[0], member.x, database);
    fromValue(list[1], member.y, database);
    fromValue(list[2], member.z, database);
}

void fromValue(const Value& value, Colour& member, const Database& /*database*/) {
    member = parseColour(value);
}

void fromValue(const Value& value, DateTime& member, const Database& /*database*/) {
    member = parseDateTime(value.asString());
}

Value referenceValue(ObjectId id, const Database& database) {
    const DbObject* object = database.peek(id);
    return object == nullptr || object->isErased() ? Value() : Value(object->name());
}

ObjectId resolveReference(RecordKind kind, const Value& value, const Database& database) {
    if (value.isNil()) {
        return {};
    }
    const ObjectId id = database.find(kind, value.asString());
    if (id.isNull()) {
        throw ValueError("there is no " + std::string(kindName(kind)) + " named " +
                         value.describe());
    }
    return id;
}

}  // namespace workbench::drawing
