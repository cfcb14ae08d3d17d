#pragma once

#include "workbench/drawing/database/db_object.h"
#include "workbench/drawing/database/record.h"
#include "workbench/drawing/database/undo_log.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace workbench::drawing {

/// How an object is opened.
enum class OpenMode { Read, Write };

/// Whether an opening takes erased objects too.
enum class ErasedObjects { Refuse, Accept };

/// What adding an object answers: the id is null unless the status is ok.
struct Added {
    Status status = Status::Ok;
    ObjectId id;
};

/// The objects of one drawing. An object stays in memory until the database goes, also when it is
/// erased, so that undo can bring it back under its old id.
class Database {
public:
    /// `serial` tells the ids of this database from those of others; it should not be used again
    /// in the same program.
    explicit Database(std::uint32_t serial = 1);

    /// Ends with a goodbye to the reactors that have not had theirs.
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    std::uint32_t serial() const { return m_serial; }

    /// Says goodbye to all reactors, those of the objects first: the drawing is closed, although
    /// whoever works on it at the moment may come to an end.
    void sayGoodbye();

    /// Adds an object at the end of the table of its kind and takes it over. A name must be free
    /// among the living objects of the kind, without regard to case.
    Added add(std::unique_ptr<DbObject> object);

    /// Adds a fresh object around the record.
    template <class Data>
    requires requires { Data::kKind; }
    Added add(Data data) {
        return add(std::unique_ptr<DbObject>(std::make_unique<Record<Data>>(std::move(data))));
    }

    /// Opens an object; on `Ok` it is in `object` and must be closed, otherwise `object` is null.
    Status open(ObjectId id, OpenMode mode, ErasedObjects erased, DbObject*& object);

    /// The object without opening it, for looking only, erased ones too; null if there is none.
    const DbObject* peek(ObjectId id) const;

    /// The record of a known kind without opening it; null if the id names no such object.
    template <class Data>
    const Data* look(ObjectId id) const {
        const auto* record = dynamic_cast<const Record<Data>*>(peek(id));
        return record == nullptr ? nullptr : &record->data();
    }

    /// The objects of a kind, in the order of their table: the living ones, or all.
    std::vector<ObjectId> ids(RecordKind kind, ErasedObjects erased = ErasedObjects::Refuse) const;

    /// The living object of a kind that bears the name, without regard to case; null if none.
    ObjectId find(RecordKind kind, std::string_view name) const;

    /// The first living object of a kind; null if there is none. For kinds of which a drawing has
    /// one at most.
    ObjectId first(RecordKind kind) const;

    /// The first living object of a kind whose record meets a condition; null for none.
    template <class Data, class Condition>
    ObjectId firstWhere(Condition condition) const {
        for (const DbObject* object : ofKind(Data::kKind)) {
            const auto* record = dynamic_cast<const Record<Data>*>(object);
            if (record != nullptr && !record->isErased() && condition(record->data()))
                return record->id();
        }
        return {};
    }

    /// The table of a kind, itself an object: it is modified whenever one of the kind is added,
    /// erased or brought back.
    ObjectId table(RecordKind kind) const;

    UndoLog& undoLog() { return m_undo; }
    const UndoLog& undoLog() const { return m_undo; }

    /// The reactor is not owned.
    void addReactor(DatabaseReactor* reactor) { m_reactors.add(reactor); }
    void removeReactor(DatabaseReactor* reactor) { m_reactors.remove(reactor); }

private:
    friend class DbObject;

    using Objects = std::vector<DbObject*>;

    /// All of a kind, erased ones too, in the order of their table.
    const Objects& ofKind(RecordKind kind) const { return m_kinds[static_cast<std::size_t>(kind)]; }
    DbObject* find(ObjectId id) const;
    void adopt(std::unique_ptr<DbObject> object);

    std::uint32_t m_serial;
    ReactorList<DatabaseReactor> m_reactors;
    std::vector<std::unique_ptr<DbObject>> m_objects;   // by handle - 1
    std::array<Objects, kRecordKindCount + 1> m_kinds;  // the tables' own kind is the last
    std::array<ObjectId, kRecordKindCount> m_tables;
    UndoLog m_undo;
};

/// An opening for the length of a scope, for read of one kind of record.
template <class Data>
class Reading {
public:
    Reading(Database& database, ObjectId id, ErasedObjects erased = ErasedObjects::Refuse)
        : m_status(database.open(id, OpenMode::Read, erased, m_object)),
          m_record(dynamic_cast<Record<Data>*>(m_object)) {
        if (m_status == Status::Ok && m_record == nullptr) {
            m_status = Status::WrongKind;
        }
    }
    ~Reading() {
        if (m_object != nullptr) {
            m_object->close();
        }
    }
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

    explicit operator bool() const { return m_status == Status::Ok; }
    Status status() const { return m_status; }
    const Data* operator->() const { return &m_record->data(); }
    const Data& operator*() const { return m_record->data(); }

private:
    DbObject* m_object = nullptr;  // stands first: the opening fills it in
    Status m_status;
    Record<Data>* m_record;
};

/// An opening for the length of a scope, for write of one kind of record.
template <class Data>
class Writing {
public:
    Writing(Database& database, ObjectId id, ErasedObjects erased = ErasedObjects::Refuse) {
        // The kind is looked at first: opening alone would tell the reactors already.
        if (database.look<Data>(id) == nullptr && database.peek(id) != nullptr) {
            m_status = Status::WrongKind;
            return;
        }
        DbObject* object = nullptr;
        m_status = database.open(id, OpenMode::Write, erased, object);
        m_record = static_cast<Record<Data>*>(object);
    }
    ~Writing() {
        if (m_record != nullptr) {
            m_record->close();
        }
    }
    Writing(const Writing&) = delete;
    Writing& operator=(const Writing&) = delete;

    explicit operator bool() const { return m_status == Status::Ok; }
    Status status() const { return m_status; }
    Data* operator->() const { return &m_record->edit(); }
    Data& operator*() const { return m_record->edit(); }

    Status erase(bool erasing = true) {
        return m_record == nullptr ? m_status : m_record->erase(erasing);
    }

private:
    Record<Data>* m_record = nullptr;
    Status m_status = Status::Ok;
};

}  // namespace workbench::drawing
