#pragma once

#include <hostapi/vxdb18/database.h>

/// The scene service of the host's render module, reached by name at each use and loaded if it is
/// not there.

/// The active sun of the drawing, made if there is none and `create` is set. Returns the service's
/// status: 0 with the ID, 600 without an active sun; 3 if the service can't be had.
Zorq::ErrorStatus getActiveSun(VxDbObjectId& sun, bool create);
