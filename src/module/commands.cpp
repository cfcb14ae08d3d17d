#include "module/commands.h"

#include "core/constants.h"
#include "core/host_objects.h"
#include "core/module_call.h"
#include "core/resources.h"
#include "core/string_ids.h"
#include "core/text.h"
#include "module/manager.h"
#include "module/module.h"

#include <hostapi/zorq/commands.h>
#include <hostapi/zorq/views.h>

#include <cstdlib>

namespace {

void onShowCommand() {
    const ModuleCall call;
    if (VxDaManager* manager = dashboardManager())
        manager->onShowCommand();
}

void onViewBackCommand() {
    const ModuleCall call;
    vxInternalZoomBack();
}

VxString environmentText(const char* name) {
    const char* value = std::getenv(name);
    if (value == nullptr)
        return {};
    const VxString::size_type length = std::char_traits<char>::length(value);
    return {value, value + length};
}

bool areCommandsEnabled() {
    const VxString value = environmentText(kEnablingVariable);
    return equalNoCase(value, L"1") || equalNoCase(value, L"Yes");
}

void addCommand(const wchar_t* globalName, const VxString& localName, int flags,
                VxEdCommandStack::CommandFunction function) {
    if (VxEdCommandStack* commands = commandStack()) {
        commands->addCommand(kCommandGroup, globalName, localName.c_str(), flags, function, nullptr,
                             -1, nullptr, nullptr);
    }
}

}  // namespace

void registerCommands() {
    if (!areCommandsEnabled())
        return;
    addCommand(kShowCommand, loadDashboardString(kStrLocalShowCommand),
               kCommandTransparent | kCommandUsePickSet, onShowCommand);
    addCommand(kViewBackCommand, kViewBackCommand, kCommandTransparent, onViewBackCommand);
}

void removeCommands() {
    if (VxEdCommandStack* commands = commandStack())
        commands->removeGroup(kCommandGroup);
}
