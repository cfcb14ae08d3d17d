#include "workbench/modules/VxExampleTools.qlx/click_counter.h"
#include "workbench/modules/VxExampleTools.qlx/dashboard_link.h"
#include "workbench/modules/VxExampleTools.qlx/scale_control.h"

#include <hostapi/export.h>
#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/vxdb18/dynamic_linker.h>

#include <memory>
#include <string_view>
#include <vector>

/// The example of a host module with a control and a tool of its own on the dashboard's panels. The
/// menu data names the module in the item's "module"; the dashboard loads it when it builds the
/// panel, and finds the two functions below by their names. The module for its part listens to the
/// dashboard, and has it make one of the dashboard's own controls on the module's behalf.

namespace {

constexpr std::wstring_view kScaleControl = L"ExampleScaleControl";
constexpr std::wstring_view kFadeControl = L"ExampleFadeControl";
constexpr const wchar_t* kFadeControlOfDashboard = L"LayerLockTransparencySliderControl";
constexpr std::wstring_view kCountButton = L"ID_ExampleCount";

/// What the module keeps between calls; made by the load message, gone with the unload message.
struct ExampleTools {
    std::vector<std::unique_ptr<ScaleControl>> controls;
    ClickCounter counter;
    DashboardLink dashboard{counter};
};

std::unique_ptr<ExampleTools> s_tools;

/// Tells the loader that the module may be unloaded and copes with several documents.
void introduce(void* appPacket) {
    VxRxDictionary* const registry = vxrxSysRegistry();
    if (registry == nullptr)
        return;
    auto* const linker = dynamic_cast<VxRxDynamicLinker*>(registry->at(L"DynamicLinker"));
    if (linker == nullptr)
        return;
    linker->unlockApplication(appPacket);
    linker->registerAppMDIAware(appPacket);
}

/// A control's window goes with the panel that it stands on; the object is left to its module.
void dropWindowless(std::vector<std::unique_ptr<ScaleControl>>& controls) {
    std::erase_if(controls, [](const auto& control) { return control->m_hWnd == nullptr; });
}

HWND makeScaleControl(CWnd& parent) {
    auto control = std::make_unique<ScaleControl>();
    const CRect rect = parent.GetClientRect();
    if (!control->Create(WS_CHILD | WS_VISIBLE, rect, &parent, 1, 2))
        return nullptr;
    dropWindowless(s_tools->controls);
    return s_tools->controls.emplace_back(std::move(control))->m_hWnd;
}

}  // namespace

VXDA_EXPORT int vxrxGetApiVersion() {
    return kVxRxApiVersion;
}

VXDA_EXPORT int vxrxEntryPoint(int message, void* appPacket) {
    if (message == static_cast<int>(VxRxMessage::kInitApp)) {
        introduce(appPacket);
        s_tools = std::make_unique<ExampleTools>();
    } else if (message == static_cast<int>(VxRxMessage::kUnloadApp)) {
        // Controls that are still on a panel take their windows along.
        s_tools.reset();
    }
    return 0;
}

/// A new control of this module in a parent window, null for a name that isn't its own.
VXDA_EXPORT HWND VxDaGetCustomControl(const wchar_t* name, HWND parent) {
    CWnd* const parentWindow = CWnd::FromHandle(parent);
    if (s_tools == nullptr || name == nullptr || parentWindow == nullptr)
        return nullptr;
    if (name == kFadeControl)
        return DashboardLink::makeControl(kFadeControlOfDashboard, parent);
    return name == kScaleControl ? makeScaleControl(*parentWindow) : nullptr;
}

/// A click on an item that names this module.
VXDA_EXPORT void VxDaButtonClicked(CQrUiToolPanelItem* item) {
    if (s_tools != nullptr && item != nullptr && item->GetID() == kCountButton)
        s_tools->counter.count(*item);
}
