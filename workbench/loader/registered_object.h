#pragma once

#include "workbench/core/host_call.h"
#include "workbench/loader/host_class.h"

#include <hostapi/vxdb18/rx_object.h>

#include <string>

namespace workbench {

/// An object that knows its class.
class ClassedObject {
public:
    /// The descriptor of the object's class; null for a class that the host doesn't have.
    virtual const HostClass* hostClass() const = 0;

protected:
    ~ClassedObject() = default;
};

/// An object of the host with a class descriptor: implements `Host`'s class test.
template <class Host>
class RegisteredObject : public Host, public ClassedObject {
public:
    /// `className` is the exact name of one of the host's classes. An object of an unknown class is
    /// of no kind.
    explicit RegisteredObject(const wchar_t* className) : m_class(findHostClass(className)) {}

    // VxRxObject:
    bool isKindOf(const VxRxClass* descriptor) const override {
        HostCall call("VxRxObject::isKindOf", {hostClassName(m_class), hostClassName(descriptor)});
        if (call.failed() || m_class == nullptr)
            return call.returns(false);
        return call.returns(m_class->isOrDerivesFrom(descriptor));
    }

    // ClassedObject:
    const HostClass* hostClass() const override { return m_class; }

private:
    const HostClass* m_class;  // not owned; null: unknown
};

}  // namespace workbench
