#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>

class VxRxClass;

/// The version of this interface, which a module answers to the loader's handshake.
constexpr int kVxRxApiVersion = 18;

/// Root of the objects that bear a class descriptor.
class VXHOST VxRxObject {
public:
    VxRxObject() = default;
    VxRxObject(const VxRxObject&) = delete;
    VxRxObject& operator=(const VxRxObject&) = delete;
    virtual ~VxRxObject() = default;
    /// Whether the object is of a class or of one derived from it; false for null.
    virtual bool isKindOf(const VxRxClass* descriptor) const = 0;
};

/// The descriptor of a class, found by the class's name in the registry's "ClassDictionary".
class VXHOST VxRxClass : public VxRxObject {};

/// A dictionary of objects by name; names are exact.
class VXHOST VxRxDictionary : public VxRxObject {
public:
    /// The object of a name, not handed over; null for none.
    virtual VxRxObject* at(const wchar_t* name) const = 0;
    /// Takes an entry out and hands it over to the caller; null for none.
    virtual VxRxObject* remove(const wchar_t* name) = 0;
};

/// The system registry: the dictionary in which the host's own objects stand.
VxRxDictionary* vxrxSysRegistry();

/// Whether a service of this name is registered.
bool vxrxServiceIsRegistered(const wchar_t* name);
/// Registers a service by name; its entry appears in the registry's "ServiceDictionary".
void vxrxRegisterService(const wchar_t* name);
/// The path of the host's part of the registry, below a root such as `HKEY_CURRENT_USER`.
VxString vxrxProductKey();
/// Loads a host module by its file name and gives it the load message. True if it is loaded
/// afterwards.
bool vxrxLoadModule(const wchar_t* fileName, bool print, bool asCommand);
