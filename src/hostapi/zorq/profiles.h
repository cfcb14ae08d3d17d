#pragma once

#include <hostapi/export.h>
#include <hostapi/types.h>
#include <hostapi/xmldom.h>

/// Receives the events of profiles. Not owned by the manager.
class VXHOST VxApProfileManagerReactor {
public:
    virtual ~VxApProfileManagerReactor() = default;
    /// Another profile became the current one.
    virtual void currentProfileChanged(const wchar_t* /*name*/) {}
    /// The current profile is about to be saved.
    virtual void currentProfileWillBeSaved(const wchar_t* /*name*/) {}
};

/// The storage of one profile. Owned by the manager.
class VXHOST VxApProfileStorage {
public:
    virtual ~VxApProfileStorage() = default;
    /// Opens the node at a path, making what is missing. Null on failure; the caller releases it.
    virtual IXMLDOMNode* createNode(const wchar_t* path) = 0;
    /// Opens the node at a path. Null if there is none; the caller releases it.
    virtual IXMLDOMNode* openNode(const wchar_t* path) = 0;
};

/// The profiles of the host.
class VXHOST VxApProfileManager {
public:
    virtual ~VxApProfileManager() = default;
    virtual void addReactor(VxApProfileManagerReactor* reactor) = 0;
    virtual void removeReactor(VxApProfileManagerReactor* reactor) = 0;
    /// The storage of a profile, made if it is missing and `create` is set; null on failure.
    virtual VxApProfileStorage* profileStorage(const wchar_t* name, bool create) = 0;
};

/// The profile manager.
VxApProfileManager* vxProfileManagerPtr();
