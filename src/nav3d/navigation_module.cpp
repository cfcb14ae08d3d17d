#include "nav3d/navigation_module.h"

#include "core/constants.h"

#include <hostapi/vxdb18/rx_object.h>

HINSTANCE findNavigationModule() {
    if (!vxrxServiceIsRegistered(kNavigationService))
        return nullptr;
    return GetModuleHandle(kNavigationModuleFile);
}
