#include "workbench/audit/control_rules.h"
#include "workbench/base/text.h"
#include "workbench/host/workbench.h"
#include "workbench/toolbar/toolbar_list.h"
#include "workbench/toolkit/combo_widget.h"

namespace workbench {

namespace {

/// A list of the host's own shows what is in force; the buttons among them show nothing, and where
/// nothing is in force the list keeps its choice.
void compareHostList(const ShownControl& control, const HostState& host, AuditReport& report) {
    const ComboWidget* const list = control.list();
    const ToolbarControl* const row = findToolbarControl(static_cast<unsigned>(control.listId()));
    if (list == nullptr || row == nullptr || row->current == nullptr)
        return;
    Workbench& workbench = host.workbench();
    const std::wstring current = row->current({workbench.editor(), workbench.menu()});
    const QRUI_COMBO_CTRL_ITEM* const selected = list->entry(list->selected());
    const std::wstring shown = selected == nullptr ? std::wstring() : std::wstring(selected->text);
    if (!equalNoCase(shown, current))
        report.compare("selected", std::optional(toUtf8(shown)), toUtf8(current));
}

}  // namespace

std::vector<ControlRule> hostListRules() {
    std::vector<ControlRule> rules;
    for (const char* name :
         {"LayerControl", "LineTypeControl", "OPTColorControl", "LineWeightControl",
          "RefblknameControl", "ViewControl", "NamedViewControl", "ViewportScaleControl",
          "PlotStyleControl", "UCSControl", "DimStyleControl", "TxtStyleControl", "TblStyleControl",
          "WorkspacesControl", "UndoSkinnyButtonControl", "RedoSkinnyButtonControl",
          "MldStyleControl", "FindTextControl"})
        rules.push_back({name, compareHostList});
    return rules;
}

}  // namespace workbench
