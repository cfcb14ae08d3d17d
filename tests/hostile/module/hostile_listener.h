#pragma once

#include <hostapi/vxdashboard.h>

namespace hostile {

/// Listens to the dashboard and reaches a point with each call. Lives as long as the module.
class HostileListener final : public VxDaDashboardReactor {
public:
    /// The one that the module registers.
    static HostileListener& first();
    /// The one that it registers in an attack.
    static HostileListener& second();

    // VxDaDashboardReactor:
    void panelsWillUnload() override;
    void panelsUnloaded() override;
    void panelsWillLoad() override;
    void panelsLoaded() override;
    void controlsWillBeReleased() override;
    void visibilityChanged(BOOL visible) override;
};

}  // namespace hostile
