#include "core/module_call.h"
#include "module/module.h"

#include <hostapi/export.h>
#include <hostapi/vxdb18/dynamic_linker.h>

/// Takes the host's messages to the module; the answer is 0 to each.
VXDA_EXPORT int vxrxEntryPoint(int message, void* appPacket) {
    const ModuleCall call;
    switch (static_cast<VxRxMessage>(message)) {
    case VxRxMessage::kInitApp:
        loadModule(appPacket);
        break;
    case VxRxMessage::kUnloadApp:
        unloadModule();
        break;
    }
    return 0;
}

/// The loader's handshake: the version of the host's interface that the module was built for.
VXDA_EXPORT int vxrxGetApiVersion() {
    return kVxRxApiVersion;
}
