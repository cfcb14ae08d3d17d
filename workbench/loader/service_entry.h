#pragma once

#include "workbench/loader/registered_object.h"

#include <hostapi/types.h>

namespace workbench {

/// A registered service: what stands in the "ServiceDictionary" under the service's name.
class ServiceEntry final : public RegisteredObject<VxRxObject> {
public:
    /// `module` is the module that registered the service, null for the host itself.
    explicit ServiceEntry(HINSTANCE module);
    ~ServiceEntry() override;

    HINSTANCE module() const { return m_module; }

    /// How many entries live, those that were taken out of the dictionary included.
    static int liveCount() { return s_live; }

private:
    inline static int s_live = 0;

    HINSTANCE m_module;  // not owned
};

}  // namespace workbench
