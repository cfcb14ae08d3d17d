#include "workbench/drawing/database/database.h"

#include "workbench/base/text.h"

namespace workbench::drawing {

namespace {

/// A table as an object that can be watched. Its entries are the objects of its kind.
class TableObject final : public DbObject {
public:
    RecordKind kind() const override { return RecordKind::Table; }

protected:
    std::unique_ptr<State> copyState() const override { return std::make_unique<State>(); }
    bool equalsState(const State& /*state*/) const override { return true; }
    void swapState(State& /*state*/) override {}
};

}  // namespace

Database::Database(std::uint32_t serial) : m_serial(serial) {
    for (ObjectId& table : m_tables) {
        adopt(std::make_unique<TableObject>());
        table = m_objects.back()->id();
    }
}

Database::~Database() {
    sayGoodbye();
}

void Database::sayGoodbye() {
    for (const auto& object : m_objects) {
        object->m_reactors.dismiss([&object](ObjectReactor& reactor) { reactor.goodbye(*object); });
    }
    m_reactors.dismiss([this](DatabaseReactor& reactor) { reactor.databaseGoodbye(*this); });
}

Added Database::add(std::unique_ptr<DbObject> object) {
    if (object->database() != nullptr) {
        return {Status::AlreadyInDatabase, {}};
    }
    if (!object->name().empty() && !find(object->kind(), object->name()).isNull()) {
        return {Status::DuplicateName, {}};
    }
    const RecordKind kind = object->kind();
    DbObject& itsTable = *find(table(kind));
    itsTable.tellOpenedForModify();
    adopt(std::move(object));
    DbObject& added = *m_objects.back();
    m_undo.add(added.erasureChange());
    m_reactors.notify([&added](DatabaseReactor& reactor) { reactor.objectAppended(added); });
    itsTable.tellModified();
    return {Status::Ok, added.id()};
}

Status Database::open(ObjectId id, OpenMode mode, ErasedObjects erased, DbObject*& object) {
    object = nullptr;
    if (id.isNull()) {
        return Status::NullObjectId;
    }
    DbObject* found = find(id);
    if (found == nullptr) {
        return Status::UnknownId;
    }
    if (found->m_erased && erased == ErasedObjects::Refuse) {
        return Status::WasErased;
    }
    if (found->m_writing) {
        return Status::WasOpenForWrite;
    }
    if (mode == OpenMode::Read) {
        ++found->m_readers;
    } else if (found->m_readers > 0) {
        return Status::WasOpenForRead;
    } else {
        found->startWriting();
    }
    object = found;
    return Status::Ok;
}

const DbObject* Database::peek(ObjectId id) const {
    return find(id);
}

std::vector<ObjectId> Database::ids(RecordKind kind, ErasedObjects erased) const {
    std::vector<ObjectId> found;
    for (const DbObject* object : ofKind(kind)) {
        if (erased == ErasedObjects::Accept || !object->isErased()) {
            found.push_back(object->id());
        }
    }
    return found;
}

ObjectId Database::find(RecordKind kind, std::string_view name) const {
    for (const DbObject* object : ofKind(kind)) {
        if (!object->isErased() && equalNoCase(object->name(), name)) {
            return object->id();
        }
    }
    return {};
}

ObjectId Database::first(RecordKind kind) const {
    for (const DbObject* object : ofKind(kind)) {
        if (!object->isErased()) {
            return object->id();
        }
    }
    return {};
}

ObjectId Database::table(RecordKind kind) const {
    return kind == RecordKind::Table ? ObjectId() : m_tables[static_cast<std::size_t>(kind)];
}

DbObject* Database::find(ObjectId id) const {
    const bool known = !id.isNull() && id.database() == m_serial && id.handle() <= m_objects.size();
    return known ? m_objects[id.handle() - 1].get() : nullptr;
}

void Database::adopt(std::unique_ptr<DbObject> object) {
    object->m_database = this;
    object->m_id = ObjectId(m_serial, static_cast<std::uint32_t>(m_objects.size() + 1));
    m_kinds[static_cast<std::size_t>(object->kind())].push_back(object.get());
    m_objects.push_back(std::move(object));
}

}  // namespace workbench::drawing
