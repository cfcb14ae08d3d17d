#pragma once

namespace workbench::drawing {

/// What an operation on the database answers. `Ok` is 0; every other value left the drawing as it
/// was.
enum class Status {
    Ok = 0,
    NullObjectId,       ///< the id is null
    UnknownId,          ///< the id belongs to another database, or names nothing
    WrongKind,          ///< the object is of another kind than asked for
    WasErased,          ///< the object is erased, and erased ones were not asked for
    WasOpenForRead,     ///< open for read elsewhere, so it can't be opened for write
    WasOpenForWrite,    ///< open for write elsewhere, so it can't be opened at all
    NotOpen,            ///< the object is not open
    NotOpenForWrite,    ///< the object would have to be open for write
    NotInDatabase,      ///< the object belongs to no database
    AlreadyInDatabase,  ///< the object belongs to a database already
    InvalidName,        ///< an empty name where one is needed
    DuplicateName,      ///< another object of the kind has the name
    NothingToUndo,
    NothingToRedo,
    GroupIsOpen,  ///< undo or redo in the middle of a command's group
    NotLocked,    ///< the document would have to be locked for writing
};

/// The name of a status, for messages and journals.
const char* statusName(Status status);

}  // namespace workbench::drawing
