#pragma once

#include "workbench/base/value.h"
#include "workbench/drawing/database/object_id.h"
#include "workbench/drawing/database/reactor_list.h"
#include "workbench/drawing/database/reactors.h"
#include "workbench/drawing/database/record_kind.h"
#include "workbench/drawing/database/status.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace workbench::drawing {

class Database;
class UndoRecord;

/// One object of a drawing. It is opened through its database, for read by many or for write by
/// one, and closed by whoever opened it. An object that is in no database yet is free to change.
class DbObject {
public:
    DbObject() = default;
    virtual ~DbObject() = default;
    DbObject(const DbObject&) = delete;
    DbObject& operator=(const DbObject&) = delete;

    virtual RecordKind kind() const = 0;

    /// The name by which others refer to the object; empty if its kind has no names.
    virtual std::string name() const;

    /// Names of the properties that files hold, in their order.
    virtual std::vector<std::string_view> propertyNames() const;

    /// The spelling of a property's name, found without regard to case; empty if there is none.
    virtual std::string_view findProperty(std::string_view name) const;

    /// A property by its exact name. Throws `ValueError` if there is none. References to other
    /// objects are given by name, looked up in `database`.
    virtual Value property(std::string_view name, const Database& database) const;

    /// Changes a property of an object that may be changed; throws `ValueError` for an unknown
    /// name and for a value that doesn't fit, and changes nothing then.
    virtual void setProperty(std::string_view name, const Value& value, const Database& database);

    ObjectId id() const { return m_id; }

    /// Null as long as the object is in none.
    Database* database() const { return m_database; }

    bool isErased() const { return m_erased; }
    bool isOpenForRead() const { return m_readers > 0; }
    bool isOpenForWrite() const { return m_writing; }

    /// True if the object may be changed now: open for write, or in no database.
    bool isWritable() const { return m_writing || m_database == nullptr; }

    /// True while undo runs in the object's database.
    bool isUndoing() const;

    /// Turns the only opening for read into one for write. `wasOpenForRead` if others read too.
    Status upgradeOpen();

    /// Ends one opening. At the end of an opening for write the change is recorded for undo and
    /// the reactors are told.
    Status close();

    /// Ends an opening for write and puts the object back as it was opened.
    Status cancel();

    /// Erases the object, or brings it back; it must be open for write, and the reactors are told
    /// when it is closed.
    Status erase(bool erasing = true);

    /// The reactor is not owned. Adding needs no opening for write.
    void addReactor(ObjectReactor* reactor) { m_reactors.add(reactor); }
    void removeReactor(ObjectReactor* reactor) { m_reactors.remove(reactor); }

protected:
    /// A state of the object, taken at some moment.
    class State {
    public:
        virtual ~State() = default;
    };

    virtual std::unique_ptr<State> copyState() const = 0;
    virtual bool equalsState(const State& state) const = 0;

    /// Swaps the object's state with a taken one.
    virtual void swapState(State& state) = 0;

private:
    friend class Database;
    friend class ObjectChange;
    friend class ErasureChange;

    /// The record that takes an erasure, a return or the object's addition back.
    std::unique_ptr<UndoRecord> erasureChange();

    void startWriting();
    void finishWriting();

    /// Tell the object's reactors, then those of the database.
    void tellOpenedForModify();
    void tellModified();
    void tellErased();

    Database* m_database = nullptr;  // not owned
    ObjectId m_id;
    bool m_erased = false;
    int m_readers = 0;
    bool m_writing = false;
    std::unique_ptr<State> m_before;  // state at the opening for write
    bool m_erasedBefore = false;      // likewise
    ReactorList<ObjectReactor> m_reactors;
};

}  // namespace workbench::drawing
