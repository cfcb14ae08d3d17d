#pragma once

#include "workbench/drawing/database/database.h"

#include <hostapi/vxdb18/database.h>

namespace workbench {

/// The ID by which modules know an object, and back.
VxDbObjectId toHostId(drawing::ObjectId id);
drawing::ObjectId fromHostId(VxDbObjectId id);
drawing::OpenMode openModeOf(VxDbOpenMode mode);
/// The status that modules get for one of the database's.
Zorq::ErrorStatus toHostStatus(drawing::Status status);

}  // namespace workbench
