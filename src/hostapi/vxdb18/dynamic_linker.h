#pragma once

#include <hostapi/export.h>
#include <hostapi/vxdb18/rx_object.h>

/// The loader of host modules, the registry's entry "DynamicLinker"; class "VxRxDynamicLinker".
class VXHOST VxRxDynamicLinker : public VxRxObject {
public:
    /// Lets the module of this packet be unloaded.
    virtual bool unlockApplication(void* appPacket) = 0;
    /// Says that the module of this packet copes with several documents.
    virtual bool registerAppMDIAware(void* appPacket) = 0;
    /// Loads a host module by its file name; true if it is loaded afterwards.
    virtual bool loadModule(const wchar_t* fileName, int print, int asCommand) = 0;
    /// A symbol exported by the module that registered a service; null for none.
    virtual void* getSymbolAddress(const wchar_t* service, const char* symbol) const = 0;
};

/// Messages to a module's entry point.
enum class VxRxMessage : int {
    kInitApp = 1,    ///< The module was loaded.
    kUnloadApp = 2,  ///< The module is about to be unloaded.
};
