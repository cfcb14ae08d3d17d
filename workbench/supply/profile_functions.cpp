#include "workbench/core/host_call.h"
#include "workbench/host/workbench.h"
#include "workbench/profiles/profile_store.h"

#include <hostapi/zorq/profiles.h>

using workbench::HostCall;
using workbench::Workbench;

VxApProfileManager* vxProfileManagerPtr() {
    HostCall call("vxProfileManagerPtr");
    if (call.failed())
        return call.returns<VxApProfileManager*>(nullptr);
    return call.returns<VxApProfileManager*>(&Workbench::current().profiles());
}
