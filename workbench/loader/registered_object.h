#pragma once

#include "workbench/core/host_call.h"
#include "workbench/loader/host_class.h"

#include <hostapi/vxdb18/rx_object.h>

#include <string>

namespace workbench {

/// An object of the host with a class descriptor: implements `Host`'s class test.
template <class Host>
class RegisteredObject : public Host {
public:
    /// `className` is the exact name of one of the host's classes. An object of an unknown class is
    /// of no kind.
    explicit RegisteredObject(const wchar_t* className) : m_class(findHostClass(className)) {}

    // VxRxObject:
    bool isKindOf(const VxRxClass* descriptor) const override {
        HostCall call("VxRxObject::isKindOf", {hostClassName(), nameOf(descriptor)});
        if (call.failed() || m_class == nullptr)
            return call.returns(false);
        return call.returns(m_class->isOrDerivesFrom(descriptor));
    }

    /// The name of the object's class; empty for an unknown one.
    std::wstring_view hostClassName() const {
        return m_class == nullptr ? std::wstring_view() : std::wstring_view(m_class->name());
    }

private:
    static std::wstring_view nameOf(const VxRxClass* descriptor) {
        const auto* hostClass = dynamic_cast<const HostClass*>(descriptor);
        return hostClass == nullptr ? std::wstring_view() : std::wstring_view(hostClass->name());
    }

    const HostClass* m_class;  // not owned; null: unknown
};

}  // namespace workbench
