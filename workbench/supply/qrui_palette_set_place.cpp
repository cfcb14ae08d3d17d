#include "workbench/core/host_call.h"
#include "workbench/supply/qrui_window.h"
#include "workbench/toolkit/bar_place.h"
#include "workbench/toolkit/held_node.h"
#include "workbench/toolkit/toolkit.h"

#include <hostapi/qrui18/palette_set.h>

#include <optional>

using workbench::BarPlace;
using workbench::HeldNode;
using workbench::HostCall;
using workbench::PaletteSetState;
using workbench::supply::toolkit;

namespace {

/// The node interface of a storage node, counted; null for none.
IXMLDOMNode* nodeOf(IUnknown* storageNode) {
    void* node = nullptr;
    if (storageNode == nullptr || storageNode->QueryInterface(IID_IXMLDOMNode, &node) != S_OK)
        return nullptr;
    return static_cast<IXMLDOMNode*>(node);
}

/// A call that is told to fail with a code raises it, as the store does; without one it just fails.
void raiseIfTold(const HostCall& call) {
    constexpr int kNoCode = 0;
    if (call.failed() && call.status(kNoCode) != kNoCode)
        throw VxComError{call.status(kNoCode)};
}

}  // namespace

BOOL CQrUiPaletteSet::Load(IUnknown* storageNode) {
    HostCall call("CQrUiPaletteSet::Load", {storageNode});
    raiseIfTold(call);
    IXMLDOMNode* const node = call.failed() ? nullptr : nodeOf(storageNode);
    if (node == nullptr)
        return call.returns(0);
    const HeldNode held(node);
    const std::optional<BarPlace> place = workbench::loadBarPlace(node);
    if (!place || !toolkit().frame().mayStand(*this, *place))
        return call.returns(0);
    PaletteSetState& state = toolkit().paletteSets().of(this);
    toolkit().tools().rememberPlace(state.toolId, *place);
    if (toolkit().frame().frameOf(*this) != nullptr)
        toolkit().frame().put(*this, *place);
    return call.returns(1);
}

BOOL CQrUiPaletteSet::Save(IUnknown* storageNode) {
    HostCall call("CQrUiPaletteSet::Save", {storageNode});
    raiseIfTold(call);
    IXMLDOMNode* const node = call.failed() ? nullptr : nodeOf(storageNode);
    if (node == nullptr)
        return call.returns(0);
    const HeldNode held(node);
    workbench::saveBarPlace(node, toolkit().frame().placeOf(*this));
    return call.returns(1);
}

BOOL CQrUiDockControlBar::IsFloating() const {
    const auto* const set = dynamic_cast<const CQrUiPaletteSet*>(this);
    const PaletteSetState* const state = toolkit().paletteSets().find(set);
    return state != nullptr && state->place.floating ? 1 : 0;
}

void CQrUiDockControlBar::EnableDocking(DWORD edges) {
    const HostCall call("CQrUiDockControlBar::EnableDocking", {edges});
    if (const auto* const set = dynamic_cast<const CQrUiPaletteSet*>(this);
        set != nullptr && !call.failed())
        toolkit().paletteSets().of(set).edges = edges;
}

void CQrUiDockControlBar::RestoreControlBar(UINT dockBar, const CRect& rectangle) {
    const HostCall call("CQrUiDockControlBar::RestoreControlBar", {dockBar});
    auto* const set = dynamic_cast<CQrUiPaletteSet*>(this);
    if (set != nullptr && m_hWnd != nullptr && !call.failed())
        toolkit().frame().restore(*set, dockBar, rectangle);
}

void QrUiRegisterTool(const wchar_t* moduleName, const wchar_t* command, const GUID& tool) {
    const HostCall call("QrUiRegisterTool", {moduleName, command});
    if (!call.failed() && moduleName != nullptr && command != nullptr)
        toolkit().tools().add(tool, {moduleName, command});
}

void QrUiResizeControlBarVerticalSize(const GUID& tool, int height) {
    const HostCall call("QrUiResizeControlBarVerticalSize", {height});
    if (call.failed())
        return;
    for (CQrUiPaletteSet* set : toolkit().frame().bars()) {
        if (toolkit().paletteSets().of(set).toolId != tool)
            continue;
        toolkit().frame().setDockedHeight(*set, height);
        return;
    }
}
