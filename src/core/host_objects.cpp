#include "core/host_objects.h"

#include <hostapi/vxdb18.h>
#include <hostapi/zorq/commands.h>
#include <hostapi/zorq/editor.h>

namespace {

const VxRxClass* findDescriptor(const wchar_t* className) {
    auto* classes = dynamic_cast<VxRxDictionary*>(vxrxSysRegistry()->at(L"ClassDictionary"));
    return classes == nullptr ? nullptr : dynamic_cast<VxRxClass*>(classes->at(className));
}

template <class Host>
Host* findObject(const wchar_t* entry, const VxRxClass* descriptor) {
    VxRxObject* object = vxrxSysRegistry()->at(entry);
    if (object == nullptr || !object->isKindOf(descriptor))
        return nullptr;
    return static_cast<Host*>(object);
}

}  // namespace

VxRxDynamicLinker* dynamicLinker() {
    static const VxRxClass* const descriptor = findDescriptor(L"VxRxDynamicLinker");
    return findObject<VxRxDynamicLinker>(L"DynamicLinker", descriptor);
}

VxEdCommandStack* commandStack() {
    static const VxRxClass* const descriptor = findDescriptor(L"VxEdCommandStack");
    return findObject<VxEdCommandStack>(L"ZORQ_REGISTERED_COMMANDS", descriptor);
}

VxEditor* hostEditor() {
    static const VxRxClass* const descriptor = findDescriptor(L"VxEditor");
    return findObject<VxEditor>(L"VxEditor", descriptor);
}

VxRxDictionary* serviceDictionary() {
    return dynamic_cast<VxRxDictionary*>(vxrxSysRegistry()->at(L"ServiceDictionary"));
}
