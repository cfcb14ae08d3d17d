#include "visualstyle/vs_obj_reactor.h"

#include "controls/cmd_util.h"
#include "palette/tool_items.h"

#include <hostapi/qrui18/tool_panel_item.h>

namespace {

/// The tools that are greyed in paper space, in this order.
constexpr const wchar_t* kLockedTools[] = {
    L"ID_VSSHADOWS_OFF",
    L"ID_VSSHADOWS_GROUND",
    L"ID_VSSHADOWS_FULL",
    L"ID_VSFACECOLORMODE_REGU",
    L"ID_VSFACECOLORMODE_MONO",
    L"ID_VSFACECOLORMODE_TINT",
    L"ID_VSFACECOLORMODE_DESA",
    L"ID_VSFACESTYLE_NONE",
    L"ID_VSFACESTYLE_REAL",
    L"ID_VSFACESTYLE_WARMCOOL",
    L"ID_VSEDGES_NONE",
    L"ID_VSEDGES_ISOLINES",
    L"ID_VSEDGES_FACET",
    L"ID_VSFACEOPACITY",
    L"ID_VSLIGHTINGQUALITY_FACET",
    L"ID_VSLIGHTINGQUALITY_SMOOTH",
    L"ID_VSLIGHTINGQUALITY_SMOOTHEST",
    L"ID_VSSILHEDGES",
    L"ID_VSINTERSECTIONEDGES",
    L"ID_VSOBSCUREDEDGES",
};

}  // namespace

void CVxDaVSObjReactor::update() {
    lockTools(isPaperSpaceActive());
}

void CVxDaVSObjReactor::lockTools(bool lock) {
    // Kept as it is: the flag is never cleared, because unlocking what is free already is harmless,
    // while an update before the first lock must cost nothing and leave a panel author's own
    // settings alone.
    if (lock)
        m_wasLocked = true;
    if (!m_wasLocked)
        return;
    for (const wchar_t* tool : kLockedTools)
        SetItemFlag(tool, lock, kItemDisabled);
}
