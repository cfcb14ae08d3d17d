#include "module/control_manager.h"

#include "controls/cmd_util.h"
#include "core/host_objects.h"
#include "core/module_call.h"
#include "light/lighting_tools.h"
#include "module/control_table.h"
#include "module/family_rows.h"
#include "nav3d/navigation_tools.h"
#include "visualstyle/style_reactors.h"

#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/zorq/documents.h>

#include <algorithm>
#include <utility>

namespace {

void removeFrom(VxApDocument& document, VxEdInputContextReactor& reactor) {
    if (VxEdInputManager* input = document.inputManager())
        input->removeReactor(&reactor);
}

}  // namespace

CVxDaControlMgr::~CVxDaControlMgr() {
    leaveService();
}

void CVxDaControlMgr::leaveService() {
    m_inService = false;
    auto reactors = std::exchange(m_documentReactors, {});
    for (auto& [document, reactor] : reactors) {
        removeFrom(*document, *reactor);
        reactor->drop();
        freeAfterCall(std::move(reactor));
    }
    releaseControls();
}

HWND CVxDaControlMgr::createControl(const VxString& name, CWnd* parent) {
    if (name.empty())
        return nullptr;
    const CRect rect = parent == nullptr ? CRect() : parent->GetClientRect();
    const ControlTableRow* row = findControlRow(name);
    if (row == nullptr || row->factory == nullptr)
        return nullptr;
    std::unique_ptr<CWnd> control = row->factory(parent, rect, row->name, this);
    if (control == nullptr || !IsWindow(control->m_hWnd))
        return nullptr;
    const HWND window = control->m_hWnd;
    m_controls.push_back(std::move(control));
    if (m_inService)
        return window;
    releaseControls();
    return nullptr;
}

void CVxDaControlMgr::releaseControls() {
    // Taken out first: what a dying control calls may come back here, or make another control.
    auto controls = std::exchange(m_controls, {});
    for (std::unique_ptr<CWnd>& control : controls) {
        // The window may have gone with an earlier panel set.
        if (IsWindow(control->m_hWnd))
            control->DestroyWindow();
        freeAfterCall(std::move(control));
    }
}

void CVxDaControlMgr::acquireStyleReactors() {
    ::acquireStyleReactors();
}

BOOL CVxDaControlMgr::setItemsHidden(const CStringArray& ids, bool add) {
    if (ids.empty())
        return 0;
    return add ? hideItems(ids) : unhideItems(ids);
}

bool CVxDaControlMgr::hideItems(const CStringArray& ids) {
    if (m_hiddenItemIds.empty()) {
        m_hiddenItemIds = ids;
        return true;
    }
    bool changed = false;
    for (const VxString& id : ids) {
        if (isItemHidden(id))
            continue;
        m_hiddenItemIds.push_back(id);
        changed = true;
    }
    return changed;
}

bool CVxDaControlMgr::unhideItems(const CStringArray& ids) {
    bool changed = false;
    for (const VxString& id : ids) {
        const auto found = std::find(m_hiddenItemIds.begin(), m_hiddenItemIds.end(), id);
        if (found == m_hiddenItemIds.end())
            continue;
        m_hiddenItemIds.erase(found);
        changed = true;
    }
    return changed;
}

bool CVxDaControlMgr::isItemHidden(const VxString& id) const {
    return std::find(m_hiddenItemIds.begin(), m_hiddenItemIds.end(), id) != m_hiddenItemIds.end();
}

void CVxDaControlMgr::onSysVarChanged(const wchar_t* name, BOOL /*success*/) {
    refreshFamiliesForVariable(name);
}

void CVxDaControlMgr::onCommandEnded(const wchar_t* name) {
    refreshFamiliesForCommand(name);
}

int CVxDaControlMgr::handleToolClick(CQrUiToolPanelItem* item) {
    if (const std::optional<int> answer = clickNavigationTool(item))
        return *answer;
    if (const std::optional<int> answer = clickLightingTool(item->GetID()))
        return *answer;
    return 1;
}

void CVxDaControlMgr::runWhenQuiescent(std::unique_ptr<QuiescentAction> action) {
    if (!commandStopped()) {
        action->run();
        return;
    }
    if (!m_inService)
        return;
    if (VxApDocument* document = currentDocument())
        documentReactor(document).append(std::move(action));
}

VxDaCmdUtil::InputContextReactor& CVxDaControlMgr::documentReactor(VxApDocument* document) {
    std::unique_ptr<InputContextReactor>& reactor = m_documentReactors[document];
    if (reactor == nullptr) {
        reactor = std::make_unique<InputContextReactor>();
        if (VxEdInputManager* input = document->inputManager())
            input->addReactor(reactor.get());
    }
    return *reactor;
}

void CVxDaControlMgr::removeDocumentReactor(VxApDocument* document) {
    auto entry = m_documentReactors.extract(document);
    if (entry.empty())
        return;
    removeFrom(*document, *entry.mapped());
    entry.mapped()->drop();
    // The document may be closed by one of the actions that the reactor is running.
    freeAfterCall(std::move(entry.mapped()));
}
