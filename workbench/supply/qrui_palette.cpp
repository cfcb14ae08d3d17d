#include "workbench/core/host_call.h"
#include "workbench/supply/qrui_window.h"
#include "workbench/toolkit/palette_widget.h"
#include "workbench/toolkit/toolkit.h"

#include <hostapi/qrui18/palette.h>
#include <hostapi/qrui18/palette_set.h>

#include <algorithm>

using workbench::HostCall;
using workbench::PaletteSetState;

BOOL CQrUiPalette::Create(CWnd* paletteSet) {
    HostCall call("CQrUiPalette::Create", {paletteSet});
    if (call.failed())
        return call.returns(0);
    using namespace workbench::supply;
    auto creation =
        creationOf("CQrUiPalette", WS_CHILD | WS_VISIBLE, clientOf(paletteSet), paletteSet, 0);
    const bool made = createChild(*this, std::move(creation),
                                  std::make_unique<workbench::PaletteWidget>(windows()));
    return call.returns(made ? 1 : 0);
}

CQrUiPaletteSet* CQrUiPalette::GetPaletteSet() const {
    const auto holdsThis = [this](const CQrUiPaletteSet*, const PaletteSetState& state) {
        return std::any_of(state.palettes.begin(), state.palettes.end(),
                           [this](const auto& palette) { return palette.get() == this; });
    };
    return const_cast<CQrUiPaletteSet*>(
        workbench::supply::toolkit().paletteSets().findIf(holdsThis));
}

bool CQrUiPalette::GetMinimumSize(CSize& /*size*/) {
    return false;
}

bool CQrUiPalette::GetMaximumSize(CSize& /*size*/) {
    return false;
}

bool CQrUiPalette::CanFrameworkTakeFocus() {
    return true;
}

const MessageMap& CQrUiPalette::GetThisMessageMap() {
    static constexpr MessageMap kMap{&CWnd::GetThisMessageMap, nullptr, 0};
    return kMap;
}

const MessageMap& CQrUiPalette::GetMessageMap() const {
    return GetThisMessageMap();
}
