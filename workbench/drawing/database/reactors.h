#pragma once

namespace workbench::drawing {

class Database;
class DbObject;

/// Is told of what happens to the objects that it has been added to. It must be removed from them
/// before it dies; adding and removing are safe inside a notification.
class ObjectReactor {
public:
    virtual ~ObjectReactor() = default;

    /// The object has been opened for write; nothing has changed yet. Comes for every opening,
    /// also when no change follows, and for every undo and redo of a change.
    virtual void openedForModify(const DbObject& /*object*/) {}

    /// The object was closed and differs from what it was.
    virtual void modified(const DbObject& /*object*/) {}

    /// The object was erased (`erasing` true) or brought back (false).
    virtual void erased(const DbObject& /*object*/, bool /*erasing*/) {}

    /// The object's memory goes; the reactor is off its list already.
    virtual void goodbye(const DbObject& /*object*/) {}
};

/// Is told of what happens to any object of a database.
class DatabaseReactor {
public:
    virtual ~DatabaseReactor() = default;

    virtual void objectAppended(const DbObject& /*object*/) {}
    virtual void objectOpenedForModify(const DbObject& /*object*/) {}
    virtual void objectModified(const DbObject& /*object*/) {}
    virtual void objectErased(const DbObject& /*object*/, bool /*erasing*/) {}

    /// The database goes; its objects have said goodbye already.
    virtual void databaseGoodbye(const Database& /*database*/) {}
};

}  // namespace workbench::drawing
