#include "workbench/adapters/open_sun.h"

namespace workbench {

bool OpenSun::skyIllumination() const {
    HostCall call("VxDbSun::skyIllumination");
    return call.returns(data().sky.illumination);
}

}  // namespace workbench
