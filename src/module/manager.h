#pragma once

#include "core/roof.h"

#include <hostapi/types.h>
#include <hostapi/vxdashboard.h>

#include <memory>
#include <vector>

class CVxDaDashboard;
class CVxDaPanelSet;
class VxDaDocManagerReactor;
class VxDaEditorReactor;
class VxDaProfileManagerReactor;

/// Stands between the host and the dashboard: owns the palette set, which it makes on demand, and
/// the three host reactors, and keeps the listeners.
class VxDaManager : public DashboardRoof {
public:
    VxDaManager();
    VxDaManager(const VxDaManager&) = delete;
    VxDaManager& operator=(const VxDaManager&) = delete;
    virtual ~VxDaManager();

    /// Makes the reactors and adds them to the host. Returns 1.
    BOOL attach();
    /// Detaches from the host, then ends the palette set; what still runs of it stops at its next
    /// step. The object's end does the same, if it wasn't called before.
    void leaveService();

    /// The command that shows the dashboard.
    void onShowCommand();
    /// Makes the palette set if there is none, shows it and builds the panels. Returns 1 on
    /// success, 0 if there is no palette set then.
    BOOL showDashboard();
    /// Takes the panels down. Returns 0 without a palette set or its window, otherwise 1.
    BOOL unloadPanels();
    /// Ends the palette set.
    void deleteDashboard();

    /// The host's notification with one of the codes `kDashboard...`.
    int notify(int code);
    /// Adds a listener, once, or takes it off. Returns 0 for null, otherwise 1.
    int addOrRemoveReactor(VxDaDashboardReactor* reactor, bool add);

    /// The palette set; null before it was first shown.
    CVxDaDashboard* dashboard() const { return m_pDashboard.get(); }
    /// Whether the panels were built and not taken down since.
    bool panelsLoaded() const { return m_bPanelsLoaded; }
    /// Sends a message to all custom controls; nothing without a panel set.
    void broadcast(UINT message, WPARAM wParam, LPARAM lParam);

    /// "CleanScreenState" changed.
    void onCleanScreenChanged();
    /// A document was created.
    void onDocumentCreated();
    /// A document was destroyed.
    void onDocumentDestroyed(const wchar_t* fileName);
    /// The application begins to quit, or no longer does.
    void setQuitting(bool quitting) { m_bQuitting = quitting; }
    bool isQuitting() const { return m_bQuitting; }

    // DashboardRoof:
    bool isDashboardVisible() const override;
    CVxDaPanelSet* panelSet() const override;
    void visibilityChanged(BOOL visible) override;

private:
    void createDashboard();
    void loadPanelsWithNotice();
    void loadPanels();
    void showBar();
    void hideBar();
    void bringBack();
    int releaseControls();
    int unloadForReload();
    int reload();
    template <class Call>
    void callListeners(Call call);

    std::unique_ptr<CVxDaDashboard> m_pDashboard;  // null until first shown
    bool m_inService = true;
    bool m_bPanelsLoaded = false;
    bool m_loadingPanels = false;
    bool m_bWasVisible = false;  // hidden on the host's behalf; to come back
    bool m_bQuitting = false;
    bool m_savedVisible = false;  // on screen when the panels were taken down for a reload
    std::unique_ptr<VxDaEditorReactor> m_pEditorReactor;
    std::unique_ptr<VxDaDocManagerReactor> m_pDocManagerReactor;
    std::unique_ptr<VxDaProfileManagerReactor> m_pProfileReactor;
    std::vector<VxDaDashboardReactor*> m_reactors;  // not owned
};
