#include "module/control_manager.h"

#include "controls/cmd_util.h"
#include "module/control_table.h"

#include "core/text.h"

#include "layer/filter_refresh.h"
#include "light/light_toolbar.h"
#include "visualstyle/material_mode.h"
#include "visualstyle/style_reactors.h"

#include <hostapi/zorq/documents.h>

#include <algorithm>
#include <string_view>

namespace {

/// Commands that change layers; compared without regard to case.
constexpr const wchar_t* kLayerCommands[] = {L"LAYER", L"-LAYER", L"U", L"UNDO", L"REDO"};

bool changesLayers(std::wstring_view command) {
    return std::any_of(std::begin(kLayerCommands), std::end(kLayerCommands),
                       [command](const wchar_t* name) { return equalNoCase(command, name); });
}

void removeFrom(VxApDocument& document, VxEdInputContextReactor& reactor) {
    if (VxEdInputManager* input = document.inputManager())
        input->removeReactor(&reactor);
}

}  // namespace

CVxDaControlMgr::~CVxDaControlMgr() {
    for (auto& [document, reactor] : m_documentReactors) {
        removeFrom(*document, *reactor);
        reactor.reset();
    }
    releaseControls();
    m_documentReactors.clear();
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
    m_controls.push_back(std::move(control));
    return m_controls.back()->m_hWnd;
}

void CVxDaControlMgr::releaseControls() {
    for (std::unique_ptr<CWnd>& control : m_controls) {
        // The window may have gone with an earlier panel set.
        if (IsWindow(control->m_hWnd))
            control->DestroyWindow();
        control.reset();
    }
    m_controls.clear();
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
    refreshMaterialModeFor(name);
    if (equalNoCase(name, L"LIGHTINGUNITS"))
        refreshLightingUnits();
    // Kept as it is: this one name counts in exactly this spelling, as the host sends it.
    if (name == std::wstring_view(L"TILEMODE"))
        refreshFilterCombos();
}

void CVxDaControlMgr::onCommandEnded(const wchar_t* name) {
    refreshMaterialModeFor(name);
    if (changesLayers(name))
        refreshFilterCombos();
}

void CVxDaControlMgr::runWhenQuiescent(std::unique_ptr<InputContextReactor::Callback> callback) {
    if (!commandStopped()) {
        callback->run();
        return;
    }
    const VxApDocManager* documents = vxDocManagerPtr();
    VxApDocument* document = documents == nullptr ? nullptr : documents->curDocument();
    if (document != nullptr)
        documentReactor(document).append(std::move(callback));
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
    const auto found = m_documentReactors.find(document);
    if (found == m_documentReactors.end())
        return;
    removeFrom(*document, *found->second);
    m_documentReactors.erase(found);
}
