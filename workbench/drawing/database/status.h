#pragma once

namespace workbench::drawing {

/// What an operation on the database answers. `ok` is 0; every other value left the drawing as it
/// was.
enum class Status {
    ok = 0,
    nullObjectId,       ///< the id is null
    unknownId,          ///< the id belongs to another database, or names nothing
    wrongKind,          ///< the object is of another kind than asked for
    wasErased,          ///< the object is erased, and erased ones were not asked for
    wasOpenForRead,     ///< open for read elsewhere, so it can't be opened for write
    wasOpenForWrite,    ///< open for write elsewhere, so it can't be opened at all
    notOpen,            ///< the object is not open
    notOpenForWrite,    ///< the object would have to be open for write
    notInDatabase,      ///< the object belongs to no database
    alreadyInDatabase,  ///< the object belongs to a database already
    invalidName,        ///< an empty name where one is needed
    duplicateName,      ///< another object of the kind has the name
    nothingToUndo,
    nothingToRedo,
    groupIsOpen,  ///< undo or redo in the middle of a command's group
};

/// The name of a status, for messages and journals.
const char* statusName(Status status);

}  // namespace workbench::drawing
