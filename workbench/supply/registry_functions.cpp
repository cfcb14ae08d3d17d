#include "workbench/core/host_call.h"
#include "workbench/host/workbench.h"
#include "workbench/loader/module_loader.h"
#include "workbench/profiles/user_registry.h"

#include <hostapi/vxdb18/rx_object.h>

using workbench::HostCall;
using workbench::ModuleLoader;
using workbench::Workbench;

namespace {

ModuleLoader& loader() {
    return Workbench::current().modules();
}

}  // namespace

VxRxDictionary* vxrxSysRegistry() {
    HostCall call("vxrxSysRegistry");
    if (call.failed())
        return call.returns<VxRxDictionary*>(nullptr);
    return call.returns(&loader().registry().dictionary());
}

bool vxrxServiceIsRegistered(const wchar_t* name) {
    HostCall call("vxrxServiceIsRegistered", {name});
    if (call.failed() || name == nullptr)
        return call.returns(false);
    return call.returns(loader().registry().isServiceRegistered(name));
}

void vxrxRegisterService(const wchar_t* name) {
    HostCall call("vxrxRegisterService", {name});
    if (call.failed() || name == nullptr)
        return;
    loader().registry().registerService(name, loader().runningModule());
}

VxString vxrxProductKey() {
    HostCall call("vxrxProductKey");
    return call.returns(call.failed() ? VxString()
                                      : VxString(workbench::UserRegistry::kProductKey));
}

bool vxrxLoadModule(const wchar_t* fileName, bool print, bool asCommand) {
    HostCall call("vxrxLoadModule", {fileName, print, asCommand});
    if (call.failed() || fileName == nullptr)
        return call.returns(false);
    return call.returns(loader().loadModule(fileName));
}
