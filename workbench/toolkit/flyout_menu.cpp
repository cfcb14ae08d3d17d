#include "workbench/toolkit/flyout_menu.h"

#include "workbench/toolkit/lookup.h"
#include "workbench/toolkit/tool_panel_item_record.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <optional>
#include <vector>

namespace workbench {

namespace {

/// The lines of a flyout's list; a line's command is the place of its tool in `tools`, from 1.
std::vector<MenuLine> linesOf(const Toolkit& toolkit, const CQrUiToolPanelItem& flyout,
                              std::vector<CQrUiToolPanelItem*>& tools) {
    std::vector<MenuLine> lines;
    for (CQrUiToolPanelItem* tool : flyout.m_record->flyoutItems) {
        const CQrUiToolPanelItem::Record& record = *tool->m_record;
        if ((record.state & kItemHidden) != 0)
            continue;
        MenuLine line;
        line.text = shownName(toolkit, *tool);
        if (line.text.empty())
            line.text = knownId(*tool);
        line.separator = record.type == kItemSeparator || record.type == kItemRowBreak;
        line.checked = flyout.m_record->currentTool == tool;
        line.disabled = (record.state & kItemDisabled) != 0;
        if (record.type == kItemFlyout) {
            line.children = linesOf(toolkit, *tool, tools);
        } else if (!line.separator) {
            tools.push_back(tool);
            line.command = static_cast<UINT>(tools.size());
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

}  // namespace

std::vector<CQrUiToolPanelItem*> offeredTools(const Toolkit& toolkit,
                                              const CQrUiToolPanelItem& flyout) {
    std::vector<CQrUiToolPanelItem*> tools;
    linesOf(toolkit, flyout, tools);
    return tools;
}

bool openFlyout(Toolkit& toolkit, CQrUiToolPanelItem& flyout) {
    std::vector<CQrUiToolPanelItem*> tools;
    const std::vector<MenuLine> lines = linesOf(toolkit, flyout, tools);
    const CQrUiToolPanel* const panel = toolPanelOf(flyout);
    const HWND place = panel == nullptr ? nullptr : panel->m_hWnd;
    const std::optional<UINT> chosen = toolkit.menus().track(lines);
    // While the list was open the panel may have gone, with all its items.
    if (place != nullptr && toolkit.windows().find(place) == nullptr)
        return false;
    if (!chosen || *chosen == 0 || *chosen > tools.size())
        return false;
    // A tool of a nested flyout becomes current there, and the nested flyout in its own.
    for (CQrUiToolPanelItem* tool = tools[*chosen - 1]; tool != &flyout;
         tool = tool->m_record->flyout)
        tool->m_record->flyout->SetCurrentFlyoutTool(tool);
    flyout.Invalidate();
    return true;
}

}  // namespace workbench
