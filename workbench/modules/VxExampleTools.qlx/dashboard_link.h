#pragma once

#include <hostapi/vxdashboard.h>

class ClickCounter;

/// The module's link to the dashboard, whose exported functions it finds by their names. While the
/// dashboard isn't there the link does nothing.
class DashboardLink final : private VxDaDashboardReactor {
public:
    /// Listens to the dashboard: panels that are built anew have the counter begin anew.
    explicit DashboardLink(ClickCounter& counter);
    DashboardLink(const DashboardLink&) = delete;
    DashboardLink& operator=(const DashboardLink&) = delete;
    ~DashboardLink() override;

    /// Has the dashboard make one of its own controls in a window; null on failure.
    static HWND makeControl(const wchar_t* name, HWND parent);

private:
    // VxDaDashboardReactor:
    void panelsWillUnload() override {}
    void panelsUnloaded() override;
    void panelsWillLoad() override {}
    void panelsLoaded() override {}
    void controlsWillBeReleased() override {}
    void visibilityChanged(BOOL /*visible*/) override {}

    ClickCounter& m_counter;
};
