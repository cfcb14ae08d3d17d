#include "workbench/drawing/path_access.h"

#include "workbench/base/text.h"
#include "workbench/drawing/drawing_sections.h"
#include "workbench/drawing/filter_paths.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/path_target.h"
#include "workbench/drawing/path_text.h"
#include "workbench/drawing/record_factory.h"
#include "workbench/drawing/records/entity.h"
#include "workbench/drawing/records/layer.h"
#include "workbench/drawing/records/viewport.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace workbench::drawing {

namespace {

using Steps = std::vector<std::string>;

Value tableValue(const Database& database, const PathTarget& target) {
    Value::List list;
    const std::vector<ObjectId> ids = target.kind == RecordKind::Viewport
                                          ? viewportsOf(database, target.id)
                                          : database.ids(target.kind);
    for (const ObjectId id : ids) {
        if (target.kind == RecordKind::Viewport) {
            list.push_back(database.look<Viewport>(id)->number);
        } else if (hasNames(target.kind)) {
            list.push_back(database.peek(id)->name());
        } else {
            list.push_back(static_cast<std::int64_t>(id.handle()));
        }
    }
    return list;
}

Value objectTable(const DbObject& object, const Database& database) {
    Value::Table table;
    for (const std::string_view name : object.propertyNames()) {
        table.push_back({std::string(name), object.property(name, database)});
    }
    return table;
}

std::string_view propertyOf(const DbObject& object, const Steps& steps, std::size_t used) {
    const std::string_view name = object.findProperty(steps[used]);
    if (name.empty()) {
        failPath(steps, used,
                 std::string("a ") + kindName(object.kind()) + " has no \"" + steps[used] + "\"");
    }
    return name;
}

/// The part of a value that a step names.
Value& partOf(Value& whole, const Steps& steps, std::size_t used) {
    const std::string& step = steps[used];
    if (whole.isTable()) {
        for (Value::Member& member : whole.asTable()) {
            if (equalNoCase(member.name, step)) {
                return member.value;
            }
        }
    }
    if (whole.isList()) {
        static constexpr std::array<std::string_view, 3> kAxes{"x", "y", "z"};
        Value::List& list = whole.asList();
        for (std::size_t axis = 0; axis < kAxes.size(); ++axis) {
            if (list.size() == kAxes.size() && equalNoCase(step, kAxes[axis])) {
                return list[axis];
            }
        }
        const int number = stepNumber(step);
        if (number >= 1 && static_cast<std::size_t>(number) <= list.size()) {
            return list[static_cast<std::size_t>(number) - 1];
        }
    }
    failPath(steps, used, whole.describe() + " has no \"" + step + "\"");
}

Value countOf(const Value& list) {
    return static_cast<std::int64_t>(list.asList().size());
}

[[noreturn]] void failMissing(const PathTarget& target, const Steps& steps) {
    const std::string which = target.name.empty() ? "" : " \"" + target.name + "\"";
    failPath(steps, target.used - 1, std::string("there is no ") + kindName(target.kind) + which);
}

/// Opens an object for write and, unless all goes well, leaves it as it was.
class Change {
public:
    Change(Database& database, ObjectId id, const Steps& steps, std::size_t used) {
        const Status status = database.open(id, OpenMode::Write, ErasedObjects::Refuse, m_object);
        if (status != Status::Ok) {
            failPath(steps, used, std::string("it can't be changed now: ") + statusName(status));
        }
    }
    ~Change() {
        if (m_object != nullptr) {
            m_object->cancel();
        }
    }
    Change(const Change&) = delete;
    Change& operator=(const Change&) = delete;

    DbObject& object() { return *m_object; }

    void commit() {
        m_object->close();
        m_object = nullptr;
    }

private:
    DbObject* m_object = nullptr;
};

void setProperty(DbObject& object, std::string_view name, const Value& value,
                 const Database& database) {
    if (name == "name" && hasNames(object.kind())) {
        const ObjectId other = database.find(object.kind(), value.asString());
        if (value.asString().empty() || (!other.isNull() && other != object.id())) {
            throw ValueError("the name " + value.describe() + " is empty or taken");
        }
    }
    object.setProperty(name, value, database);
}

void setProperties(DbObject& object, const Value& table, const Steps& steps, std::size_t used,
                   const Database& database) {
    for (const Value::Member& member : table.asTable()) {
        const std::string_view name = object.findProperty(member.name);
        if (name.empty()) {
            failPath(
                steps, used,
                std::string("a ") + kindName(object.kind()) + " has no \"" + member.name + "\"");
        }
        setProperty(object, name, member.value, database);
    }
    if (const auto* entity = dynamic_cast<const Record<Entity>*>(&object)) {
        const std::string problem = entityProblem(entity->data());
        if (!problem.empty()) {
            throw ValueError(problem);
        }
    }
}

/// Makes a new sun or background the one that the active viewport shows.
void showInActiveViewport(Database& database, RecordKind kind, ObjectId id) {
    Writing<Viewport> viewport(database, activeViewport(database));
    if (!viewport) {
        return;
    }
    if (kind == RecordKind::Sun) {
        viewport->sun = id;
    } else if (kind == RecordKind::Background) {
        viewport->background = id;
    } else {
        viewport->visualStyle = id;
    }
}

/// A name that no object of the kind bears, for one that is added without.
std::string freeName(const Database& database, RecordKind kind) {
    const std::string base = kindName(kind);
    std::string name = base;
    for (int number = 2; !database.find(kind, name).isNull(); ++number) {
        name = base + " " + std::to_string(number);
    }
    return name;
}

void giveIdentity(DbObject& object, const PathTarget& target, const Database& database) {
    if (hasNames(target.kind)) {
        const std::string name =
            target.name.empty() ? freeName(database, target.kind) : target.name;
        object.setProperty("name", name, database);
    }
    if (target.kind == RecordKind::Viewport) {
        const ObjectId layout = activeLayout(database);
        object.setProperty("number", stepNumber(target.name), database);
        object.setProperty("layout", referenceValue(layout, database), database);
    }
}

void addObject(Database& database, const PathTarget& target, const Steps& steps,
               const Value& table) {
    if (target.kind == RecordKind::Entity && !equalNoCase(target.name, "new")) {
        failPath(steps, target.used - 1, "a new entity is added as \"entities.new\"");
    }
    std::unique_ptr<DbObject> object = makeRecord(target.kind);
    giveIdentity(*object, target, database);
    setProperties(*object, table, steps, target.used, database);
    const UndoGroup together(database.undoLog(), "add");
    const Added added = database.add(std::move(object));
    if (added.status != Status::Ok) {
        failPath(steps, target.used - 1, statusName(added.status));
    }
    if (target.isActive) {
        showInActiveViewport(database, target.kind, added.id);
    }
}

void eraseObject(Database& database, const PathTarget& target, const Steps& steps) {
    const bool isLayerZero =
        target.kind == RecordKind::Layer && database.peek(target.id)->name() == kLayerZero;
    if (isLayerZero ||
        !(hasNames(target.kind) || target.kind == RecordKind::Entity ||
          target.kind == RecordKind::GeoLocation || target.kind == RecordKind::Viewport)) {
        failPath(steps, target.used, "it can't be erased");
    }
    Change change(database, target.id, steps, target.used);
    change.object().erase();
    change.commit();
}

/// A property's value after the change of the part that the steps behind the property name.
Value changedValue(Value whole, const Steps& steps, std::size_t used, const Value& value) {
    Value* part = &whole;
    for (++used; used < steps.size(); ++used) {
        part = &partOf(*part, steps, used);
    }
    *part = value;
    return whole;
}

void changeProperty(Database& database, const PathTarget& target, const Steps& steps,
                    const Value& value) {
    Change change(database, target.id, steps, target.used);
    DbObject& object = change.object();
    const std::string_view name = propertyOf(object, steps, target.used);
    auto* const viewport = dynamic_cast<Record<Viewport>*>(&object);
    const ViewParameters before = viewport == nullptr ? ViewParameters() : viewport->data().view;
    setProperty(object, name,
                changedValue(object.property(name, database), steps, target.used, value), database);
    // A view that moves is no longer the named one.
    if (viewport != nullptr && viewport->data().view != before)
        viewport->edit().appliedView = {};
    change.commit();
}

bool canBeAddedAlone(const PathTarget& target) {
    return target.isActive || target.kind == RecordKind::GeoLocation;
}

void changeAny(Database& database, const Steps& steps, const Value& value) {
    const PathTarget target = resolvePath(database, steps);
    const bool whole = steps.size() == target.used;
    if (target.form == PathTarget::Form::Table) {
        failPath(steps, target.used, "a whole table can't be set");
    }
    if (target.form == PathTarget::Form::Missing && whole) {
        if (!value.isNil()) {
            addObject(database, target, steps, value);
        }
        return;
    }
    if (target.form == PathTarget::Form::Missing) {
        if (!canBeAddedAlone(target)) {
            failMissing(target, steps);
        }
        const std::unique_ptr<DbObject> fresh = makeRecord(target.kind);
        const std::string name(propertyOf(*fresh, steps, target.used));
        Value changed = changedValue(fresh->property(name, database), steps, target.used, value);
        addObject(database, target, steps, Value::Table{{name, std::move(changed)}});
        return;
    }
    if (!whole) {
        changeProperty(database, target, steps, value);
    } else if (value.isNil()) {
        eraseObject(database, target, steps);
    } else {
        Change change(database, target.id, steps, target.used);
        setProperties(change.object(), value, steps, target.used, database);
        change.commit();
    }
}

}  // namespace

Value getByPath(const Database& database, std::string_view path) {
    const Steps steps = parsePath(path);
    const PathTarget target = resolvePath(database, steps);
    if (target.kind == RecordKind::LayerFilters) {
        return getFilterPath(database, steps);
    }
    std::size_t used = target.used;
    Value value;
    if (target.form == PathTarget::Form::Table) {
        value = tableValue(database, target);
        if (used < steps.size() && equalNoCase(steps[used], "count")) {
            value = countOf(value);
            ++used;
        }
    } else if (target.form == PathTarget::Form::Missing) {
        if (used < steps.size()) {
            failMissing(target, steps);
        }
    } else if (used == steps.size()) {
        value = objectTable(*database.peek(target.id), database);
    } else {
        const DbObject& object = *database.peek(target.id);
        value = object.property(propertyOf(object, steps, used), database);
        ++used;
    }
    for (; used < steps.size(); ++used) {
        if (value.isList() && equalNoCase(steps[used], "count")) {
            value = countOf(value);
        } else {
            value = Value(partOf(value, steps, used));
        }
    }
    return value;
}

void setByPath(Database& database, std::string_view path, const Value& value) {
    const Steps steps = parsePath(path);
    try {
        if (equalNoCase(steps.front(), "filters")) {
            setFilterPath(database, steps, value);
        } else {
            changeAny(database, steps, value);
        }
    } catch (const ValueError& error) {
        failPath(steps, steps.size(), error.what());
    }
}

}  // namespace workbench::drawing
