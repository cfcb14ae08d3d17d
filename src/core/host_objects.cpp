#include "core/host_objects.h"

#include <hostapi/vxdb18.h>
#include <hostapi/zorq/commands.h>
#include <hostapi/zorq/documents.h>
#include <hostapi/zorq/editor.h>

namespace {

VxRxObject* findEntry(const wchar_t* name) {
    const VxRxDictionary* registry = vxrxSysRegistry();
    return registry == nullptr ? nullptr : registry->at(name);
}

const VxRxClass* findDescriptor(const wchar_t* className) {
    auto* classes = dynamic_cast<VxRxDictionary*>(findEntry(L"ClassDictionary"));
    return classes == nullptr ? nullptr : dynamic_cast<VxRxClass*>(classes->at(className));
}

/// The object of an entry if it is of a class.
template <class Host>
Host* findObject(const wchar_t* entry, const wchar_t* className) {
    // Descriptors never move, so one that was found is kept; a miss is not.
    static const VxRxClass* descriptor = nullptr;
    if (descriptor == nullptr)
        descriptor = findDescriptor(className);
    VxRxObject* object = findEntry(entry);
    if (object == nullptr || !object->isKindOf(descriptor))
        return nullptr;
    return static_cast<Host*>(object);
}

}  // namespace

VxRxDynamicLinker* dynamicLinker() {
    return findObject<VxRxDynamicLinker>(L"DynamicLinker", L"VxRxDynamicLinker");
}

VxEdCommandStack* commandStack() {
    return findObject<VxEdCommandStack>(L"ZORQ_REGISTERED_COMMANDS", L"VxEdCommandStack");
}

VxEditor* hostEditor() {
    return findObject<VxEditor>(L"VxEditor", L"VxEditor");
}

VxRxDictionary* serviceDictionary() {
    return dynamic_cast<VxRxDictionary*>(findEntry(L"ServiceDictionary"));
}

VxDbDatabase* workingDatabase() {
    const VxDbHostApplicationServices* services = vxdbHostApplicationServices();
    return services == nullptr ? nullptr : services->workingDatabase();
}

VxApDocument* currentDocument() {
    VxApDocManager* documents = vxDocManagerPtr();
    return documents == nullptr ? nullptr : documents->curDocument();
}
