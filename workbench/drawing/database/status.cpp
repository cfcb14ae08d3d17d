#include "workbench/drawing/database/status.h"

namespace workbench::drawing {

const char* statusName(Status status) {
    switch (status) {
    case Status::Ok:
        return "ok";
    case Status::NullObjectId:
        return "nullObjectId";
    case Status::UnknownId:
        return "unknownId";
    case Status::WrongKind:
        return "wrongKind";
    case Status::WasErased:
        return "wasErased";
    case Status::WasOpenForRead:
        return "wasOpenForRead";
    case Status::WasOpenForWrite:
        return "wasOpenForWrite";
    case Status::NotOpen:
        return "notOpen";
    case Status::NotOpenForWrite:
        return "notOpenForWrite";
    case Status::NotInDatabase:
        return "notInDatabase";
    case Status::AlreadyInDatabase:
        return "alreadyInDatabase";
    case Status::InvalidName:
        return "invalidName";
    case Status::DuplicateName:
        return "duplicateName";
    case Status::NothingToUndo:
        return "nothingToUndo";
    case Status::NothingToRedo:
        return "nothingToRedo";
    case Status::GroupIsOpen:
        return "groupIsOpen";
    case Status::NotLocked:
        return "notLocked";
    }
    return "unknown";
}

}  // namespace workbench::drawing
