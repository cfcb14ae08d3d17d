#include "palette/foreign_module.h"

#include <hostapi/vxdb18/rx_object.h>
#include <hostapi/window/module.h>

void* findModuleExport(const VxString& moduleFile, const char* symbol) {
    HINSTANCE module = GetModuleHandle(moduleFile.c_str());
    if (module == nullptr) {
        if (!vxrxLoadModule(moduleFile.c_str(), false, true))
            return nullptr;
        module = GetModuleHandle(moduleFile.c_str());
    }
    return module == nullptr ? nullptr : GetProcAddress(module, symbol);
}
