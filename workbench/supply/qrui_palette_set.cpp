#include "workbench/core/host_call.h"
#include "workbench/supply/qrui_window.h"
#include "workbench/toolkit/floating_frame.h"
#include "workbench/toolkit/palette_set_widget.h"
#include "workbench/toolkit/toolkit.h"

#include <hostapi/qrui18/palette.h>
#include <hostapi/qrui18/palette_set.h>

using workbench::FloatingFrame;
using workbench::HostCall;
using workbench::PaletteSetState;
using workbench::supply::toolkit;
using workbench::supply::windows;

namespace {

PaletteSetState& stateOf(const CQrUiPaletteSet* set) {
    return toolkit().paletteSets().of(set);
}

}  // namespace

CQrUiPaletteSet::CQrUiPaletteSet(UINT /*reserved*/) {}

CQrUiPaletteSet::~CQrUiPaletteSet() {
    if (m_hWnd != nullptr)
        DestroyWindow();
    toolkit().paletteSets().erase(this);
    toolkit().frame().layout();
}

void CQrUiPaletteSet::SetToolID(const GUID& tool) {
    stateOf(this).toolId = tool;
}

BOOL CQrUiPaletteSet::Create(const VxString& title, DWORD style, const CRect& rect, CWnd* parent,
                             UINT toolkitStyle) {
    HostCall call("CQrUiPaletteSet::Create", {title, style, parent, toolkitStyle});
    if (call.failed())
        return call.returns(0);
    auto creation =
        workbench::supply::creationOf("CQrUiPaletteSet", style & ~WS_VISIBLE, rect, parent, 0);
    creation.text = title;
    creation.widget = std::make_unique<workbench::PaletteSetWidget>(toolkit());
    stateOf(this).place.rect = rect;
    if (!windows().create(*this, std::move(creation)))
        return call.returns(0);
    toolkit().frame().add(*this);
    return call.returns(1);
}

void CQrUiPaletteSet::AddPalette(CQrUiPalette* palette) {
    const HostCall call("CQrUiPaletteSet::AddPalette", {palette});
    if (palette == nullptr)
        return;
    stateOf(this).palettes.emplace_back(palette);
    if (auto* const widget = windows().widgetOf<workbench::PaletteSetWidget>(this))
        widget->layout(*windows().find(m_hWnd));
}

void CQrUiPaletteSet::SetTheme(CQrUiTheme* theme) {
    const HostCall call("CQrUiPaletteSet::SetTheme", {theme});
    if (!call.failed())
        stateOf(this).theme = theme;
}

CQrUiTheme* CQrUiPaletteSet::GetTheme() const {
    return stateOf(this).theme;
}

BOOL CQrUiPaletteSet::Anchored() const {
    return stateOf(this).place.anchored ? 1 : 0;
}

CSize CQrUiPaletteSet::GetNonClientSize() const {
    return {2 * FloatingFrame::kBorder, FloatingFrame::kCaption + FloatingFrame::kBorder};
}

BOOL CQrUiPaletteSet::AddContextMenuItems(CMenu& /*menu*/) {
    return 1;
}

void CQrUiPaletteSet::ThemeModified(int /*element*/) {
    windows().invalidate(m_hWnd);
}

int CQrUiPaletteSet::OnCreate(const CREATESTRUCT* create) {
    HostCall call("CQrUiPaletteSet::OnCreate", {create});
    return call.returns(call.failed() ? -1 : 0);
}

const MessageMap& CQrUiPaletteSet::GetThisMessageMap() {
    static constexpr MessageMap kMap{&CWnd::GetThisMessageMap, nullptr, 0};
    return kMap;
}

const MessageMap& CQrUiPaletteSet::GetMessageMap() const {
    return GetThisMessageMap();
}
