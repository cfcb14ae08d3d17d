#include "tests/hostile/attack.h"
#include "tests/hostile/module/actions.h"
#include "tests/hostile/module/attacker.h"
#include "tests/hostile/module/event_reactors.h"
#include "tests/hostile/module/hostile_control.h"
#include "tests/hostile/module/hostile_listener.h"
#include "workbench/modules/module_start.h"

#include <hostapi/export.h>
#include <hostapi/vxdashboard.h>
#include <hostapi/zorq/commands.h>

#include <memory>
#include <optional>
#include <string_view>

/// A host module that calls the dashboard back in at the worst moment. It hears all events, listens
/// to the dashboard, and has a control and a tool on its panels.

namespace {

using hostile::Action;
using hostile::Attacker;
using hostile::Point;

constexpr const wchar_t* kGroup = L"HOSTILE";

/// In place of the host's commands of these names, once the module is armed for that.
constexpr const wchar_t* kReplacedCommands[] = {L"DEFAULTLIGHTING", L"LIGHTGLYPHDISPLAY",
                                                L"SUNSTATUS"};

std::optional<hostile::EventReactors> s_reactors;

VxEdCommandStack& commandStack() {
    return dynamic_cast<VxEdCommandStack&>(*vxrxSysRegistry()->at(L"ZORQ_REGISTERED_COMMANDS"));
}

void runCommand() {
    hostile::reach(Point::CommandRuns);
}

void replaceCommands() {
    for (const wchar_t* name : kReplacedCommands) {
        commandStack().addCommand(kGroup, name, name, 0, runCommand, nullptr, -1, nullptr, nullptr);
    }
}

void removeListeners() {
    hostile::addOrRemoveListener(hostile::HostileListener::first(), false);
    hostile::addOrRemoveListener(hostile::HostileListener::second(), false);
}

void start(void* appPacket) {
    if (VxRxDynamicLinker* const linker = moduleLinker()) {
        linker->unlockApplication(appPacket);
        linker->registerAppMDIAware(appPacket);
    }
    s_reactors.emplace();
}

void stop() {
    removeListeners();
    commandStack().removeGroup(kGroup);
    s_reactors.reset();
    hostile::HostileControl::endAll();
}

}  // namespace

VXDA_EXPORT int vxrxGetApiVersion() {
    return kVxRxApiVersion;
}

VXDA_EXPORT int vxrxEntryPoint(int message, void* appPacket) {
    if (message == static_cast<int>(VxRxMessage::kInitApp))
        start(appPacket);
    else if (message == static_cast<int>(VxRxMessage::kUnloadApp))
        stop();
    return 0;
}

/// A new control of this module in a parent window, null for a name that isn't its own.
VXDA_EXPORT HWND VxDaGetCustomControl(const wchar_t* name, HWND parent) {
    hostile::reach(Point::FactoryAsked);
    CWnd* const parentWindow = CWnd::FromHandle(parent);
    if (name == nullptr || name != std::wstring_view(hostile::kControl) || parentWindow == nullptr)
        return nullptr;
    const HWND control = hostile::HostileControl::make(*parentWindow);
    hostile::reach(Point::FactoryAnswers);
    return control;
}

/// A click on an item that names this module.
VXDA_EXPORT void VxDaButtonClicked(CQrUiToolPanelItem* /*item*/) {
    hostile::reach(Point::ToolClicked);
}

VXDA_EXPORT void HostileArm(int point, int occurrence, int action) {
    if (static_cast<Point>(point) == Point::CommandRuns)
        replaceCommands();
    else
        commandStack().removeGroup(kGroup);
    Attacker::instance().arm(static_cast<Point>(point), occurrence, static_cast<Action>(action));
}

VXDA_EXPORT int HostileCount(int point) {
    return Attacker::instance().count(static_cast<Point>(point));
}

VXDA_EXPORT bool HostileHasStruck() {
    return Attacker::instance().hasStruck();
}

VXDA_EXPORT void HostileReach(int point) {
    hostile::reach(static_cast<Point>(point));
}

VXDA_EXPORT void HostileListen() {
    removeListeners();
    hostile::addOrRemoveListener(hostile::HostileListener::first(), true);
}
