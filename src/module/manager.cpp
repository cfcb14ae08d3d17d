#include "module/manager.h"

#include "controls/variable_access.h"
#include "core/broadcast_messages.h"
#include "core/constants.h"
#include "core/flag_scope.h"
#include "core/host_objects.h"
#include "core/module_call.h"
#include "core/resources.h"
#include "core/string_ids.h"
#include "core/theme.h"
#include "module/control_manager.h"
#include "module/manager_reactors.h"
#include "module/module.h"
#include "palette/dashboard.h"
#include "palette/palette.h"
#include "palette/panel_set.h"
#include "visualstyle/style_reactors.h"

#include <hostapi/zorq.h>

#include <algorithm>
#include <utility>

namespace {

/// Whether the host's frame can show or hide the bar: one that floats without a frame of its own
/// can't.
bool canShowOrHide(const CVxDaDashboard& bar) {
    return !bar.IsFloating() || bar.GetDockingFrame() != nullptr;
}

/// Adds a reactor to an object of the host; nothing if the host has none.
template <class Host, class Reactor>
void addTo(Host* host, const std::unique_ptr<Reactor>& reactor) {
    if (host != nullptr)
        host->addReactor(reactor.get());
}

/// Takes a reactor off an object of the host, and ends it. One of its events may be running.
template <class Host, class Reactor>
void removeFrom(Host* host, std::unique_ptr<Reactor>& reactor) {
    if (host != nullptr && reactor != nullptr)
        host->removeReactor(reactor.get());
    freeAfterCall(std::move(reactor));
}

/// Whether one document is open, or is about to be the last one that was.
bool hasOneDocument() {
    const VxApDocManager* documents = vxDocManagerPtr();
    return documents != nullptr && documents->documentCount() == 1;
}

bool isCleanScreenOn() {
    return readVariableFlag(L"CleanScreenState") == 1;
}

}  // namespace

VxDaManager::VxDaManager() = default;

VxDaManager::~VxDaManager() {
    leaveService();
}

void VxDaManager::leaveService() {
    if (!m_inService)
        return;
    m_inService = false;
    removeFrom(vxProfileManagerPtr(), m_pProfileReactor);
    removeFrom(hostEditor(), m_pEditorReactor);
    removeFrom(vxDocManagerPtr(), m_pDocManagerReactor);
    deleteDashboard();
}

BOOL VxDaManager::attach() {
    m_pProfileReactor = std::make_unique<VxDaProfileManagerReactor>(this);
    addTo(vxProfileManagerPtr(), m_pProfileReactor);
    m_pEditorReactor = std::make_unique<VxDaEditorReactor>(this);
    addTo(hostEditor(), m_pEditorReactor);
    m_pDocManagerReactor = std::make_unique<VxDaDocManagerReactor>(this);
    addTo(vxDocManagerPtr(), m_pDocManagerReactor);
    return 1;
}

void VxDaManager::onShowCommand() {
    if (!m_bPanelsLoaded && showDashboard() == 0)
        return;
    if (m_pDashboard == nullptr)
        return;
    showBar();
    visibilityChanged(1);
}

BOOL VxDaManager::showDashboard() {
    if (m_pDashboard == nullptr)
        createDashboard();
    if (m_pDashboard == nullptr)
        return 0;
    showBar();
    visibilityChanged(1);
    loadPanelsWithNotice();
    return m_pDashboard == nullptr ? 0 : 1;
}

void VxDaManager::createDashboard() {
    if (CQrUiTheme* theme = dashboardTheme())
        theme->SetData(kThemeDataValue, 0);
    m_pDashboard = std::make_unique<CVxDaDashboard>();
    m_pDashboard->create(loadDashboardString(kStrDashboardTitle));
}

void VxDaManager::loadPanelsWithNotice() {
    // A listener or a foreign control that asks for the panels while they are built gets those.
    if (m_loadingPanels || m_pDashboard == nullptr)
        return;
    loadPanels();
    if (m_pDashboard == nullptr)
        return;
    m_bPanelsLoaded = true;
    callListeners([](VxDaDashboardReactor& listener) { listener.panelsLoaded(); });
    if (m_inService)
        updateVisualStyleState();
}

void VxDaManager::loadPanels() {
    const FlagScope loading(m_loadingPanels);
    callListeners([](VxDaDashboardReactor& listener) { listener.panelsWillLoad(); });
    if (m_pDashboard == nullptr)
        return;
    if (CVxDaControlMgr* controls = controlManager())
        controls->acquireStyleReactors();
    m_pDashboard->loadPanels();
}

BOOL VxDaManager::unloadPanels() {
    if (m_pDashboard == nullptr || !IsWindow(m_pDashboard->m_hWnd))
        return 0;
    callListeners([](VxDaDashboardReactor& listener) { listener.panelsWillUnload(); });
    if (m_pDashboard == nullptr)
        return 0;
    if (CVxDaPalette* palette = m_pDashboard->palette())
        palette->replacePanelSet();
    m_bPanelsLoaded = false;
    callListeners([](VxDaDashboardReactor& listener) { listener.panelsUnloaded(); });
    return 1;
}

void VxDaManager::deleteDashboard() {
    if (std::unique_ptr<CVxDaDashboard> dashboard = std::move(m_pDashboard)) {
        dashboard->leaveService();
        freeAfterCall(std::move(dashboard));
    }
}

CVxDaPanelSet* VxDaManager::panelSet() const {
    if (m_pDashboard == nullptr)
        return nullptr;
    const CVxDaPalette* palette = m_pDashboard->palette();
    return palette == nullptr ? nullptr : palette->panelSet();
}

void VxDaManager::broadcast(UINT message, WPARAM wParam, LPARAM lParam) {
    if (CVxDaPanelSet* receivers = panelSet())
        receivers->sendToControls(message, wParam, lParam);
}

int VxDaManager::addOrRemoveReactor(VxDaDashboardReactor* reactor, bool add) {
    if (reactor == nullptr)
        return 0;
    const auto found = std::find(m_reactors.begin(), m_reactors.end(), reactor);
    if (found == m_reactors.end()) {
        if (add)
            m_reactors.push_back(reactor);
    } else if (!add) {
        m_reactors.erase(found);
    }
    return 1;
}

void VxDaManager::visibilityChanged(BOOL visible) {
    callListeners(
        [visible](VxDaDashboardReactor& listener) { listener.visibilityChanged(visible); });
}

template <class Call>
void VxDaManager::callListeners(Call call) {
    const std::size_t count = m_reactors.size();
    for (std::size_t i = 0; i < count; ++i) {
        // A listener that had the module unloaded was the last to be told.
        if (!m_inService)
            return;
        // A listener that shrank the list from inside a call is at fault.
        if (i >= m_reactors.size())
            AfxThrowInvalidArgException();
        call(*m_reactors[i]);
    }
}

void VxDaManager::showBar() {
    if (m_pDashboard == nullptr || (m_pDashboard->GetStyle() & WS_VISIBLE) != 0)
        return;
    CFrameWnd* frame = vxedGetZorqFrame();
    if (frame != nullptr && canShowOrHide(*m_pDashboard)) {
        frame->ShowControlBar(m_pDashboard.get(), 1, 0);
    }
}

void VxDaManager::hideBar() {
    if (m_pDashboard == nullptr || (m_pDashboard->GetStyle() & WS_VISIBLE) == 0)
        return;
    CFrameWnd* frame = vxedGetZorqFrame();
    if (frame != nullptr && canShowOrHide(*m_pDashboard)) {
        frame->ShowControlBar(m_pDashboard.get(), 0, 0);
    }
}

bool VxDaManager::isDashboardVisible() const {
    return m_pDashboard != nullptr && m_pDashboard->IsWindowVisible() != 0;
}

void VxDaManager::onCleanScreenChanged() {
    if (m_pDashboard == nullptr)
        return;
    if (isCleanScreenOn()) {
        m_bWasVisible = isDashboardVisible();
        if (!m_bWasVisible || !m_bPanelsLoaded)
            return;
        hideBar();
        visibilityChanged(0);
    } else if (m_bWasVisible) {
        bringBack();
    }
}

void VxDaManager::bringBack() {
    if (!m_bPanelsLoaded && showDashboard() == 0)
        return;
    showBar();
    visibilityChanged(1);
}

void VxDaManager::onDocumentDestroyed(const wchar_t* fileName) {
    if (m_bQuitting)
        return;
    // The dying document still counts.
    if (!hasOneDocument())
        return;
    m_bWasVisible = isDashboardVisible();
    if (m_bWasVisible && m_bPanelsLoaded) {
        hideBar();
        visibilityChanged(0);
    }
    broadcast(WM_DA_LAST_DOC_DESTROYED, 0, reinterpret_cast<LPARAM>(fileName));
}

void VxDaManager::onDocumentCreated() {
    if (!hasOneDocument() || !m_bWasVisible)
        return;
    if (isCleanScreenOn())
        return;
    bringBack();
}

int VxDaManager::notify(int code) {
    switch (code) {
    case kDashboardReleaseControls:
        return releaseControls();
    case kDashboardUnload:
        return unloadForReload();
    case kDashboardReload:
        return reload();
    default:
        return 1;
    }
}

int VxDaManager::releaseControls() {
    if (!m_bPanelsLoaded)
        return 1;
    callListeners([](VxDaDashboardReactor& listener) { listener.controlsWillBeReleased(); });
    if (!m_inService)
        return 1;
    if (CVxDaControlMgr* controls = controlManager())
        controls->releaseControls();
    if (m_inService)
        releaseStyleReactors();
    return 1;
}

int VxDaManager::unloadForReload() {
    if (!m_bPanelsLoaded)
        return 1;
    if (m_pDashboard == nullptr)
        return 0;
    if (IsWindow(m_pDashboard->m_hWnd))
        m_savedVisible = isDashboardVisible();
    unloadPanels();
    return 1;
}

int VxDaManager::reload() {
    const bool hasWindow = m_pDashboard != nullptr && IsWindow(m_pDashboard->m_hWnd);
    if (!m_bPanelsLoaded && hasWindow)
        loadPanelsWithNotice();
    if (m_pDashboard == nullptr)
        return 0;
    const bool visible = (m_pDashboard->GetStyle() & WS_VISIBLE) != 0;
    if (m_savedVisible != visible)
        m_pDashboard->show(m_savedVisible);
    visibilityChanged(m_savedVisible);
    return 1;
}
