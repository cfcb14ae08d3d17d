#include "workbench/drawing/database/status.h"

namespace workbench::drawing {

const char* statusName(Status status) {
    switch (status) {
    case Status::ok:
        return "ok";
    case Status::nullObjectId:
        return "nullObjectId";
    case Status::unknownId:
        return "unknownId";
    case Status::wrongKind:
        return "wrongKind";
    case Status::wasErased:
        return "wasErased";
    case Status::wasOpenForRead:
        return "wasOpenForRead";
    case Status::wasOpenForWrite:
        return "wasOpenForWrite";
    case Status::notOpen:
        return "notOpen";
    case Status::notOpenForWrite:
        return "notOpenForWrite";
    case Status::notInDatabase:
        return "notInDatabase";
    case Status::alreadyInDatabase:
        return "alreadyInDatabase";
    case Status::invalidName:
        return "invalidName";
    case Status::duplicateName:
        return "duplicateName";
    case Status::nothingToUndo:
        return "nothingToUndo";
    case Status::nothingToRedo:
        return "nothingToRedo";
    case Status::groupIsOpen:
        return "groupIsOpen";
    }
    return "unknown";
}

}  // namespace workbench::drawing
