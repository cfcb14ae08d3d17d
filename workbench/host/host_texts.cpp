#include "workbench/host/host_texts.h"

#include "workbench/host/workbench.h"
#include "workbench/loader/module_loader.h"
#include "workbench/menu/menu_host.h"

namespace workbench {

std::optional<int> HostTexts::resourceNumberOf(std::wstring_view text) const {
    return m_workbench.modules().strings().resourceNumberOf(text);
}

std::wstring HostTexts::labelOf(const VxToolPanelItemData* record) const {
    return m_workbench.menu().labelOf(record);
}

}  // namespace workbench
