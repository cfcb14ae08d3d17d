#include "palette/panel.h"

#include "controls/cmd_util.h"
#include "core/message_table.h"
#include "core/resources.h"
#include "core/string_ids.h"
#include "palette/item_click.h"
#include "palette/menu_commands.h"
#include "palette/menu_lines.h"
#include "palette/panel_set.h"
#include "palette/tool_palettes.h"

#include <hostapi/qrui18/messages.h>
#include <hostapi/vxtcui.h>
#include <hostapi/zorq.h>

constexpr MessageEntry CVxDaPanel::kMessages[] = {
    {WM_COMMAND, to<&CVxDaPanel::onHelp>, kCommandHelp, kCommandHelp},
    {WM_COMMAND, to<&CVxDaPanel::onHide>, kCommandHidePanel, kCommandHidePanel},
    {WM_COMMAND, to<&CVxDaPanel::onCustomize>, kCommandCustomize, kCommandCustomize},
    {WM_COMMAND, to<&CVxDaPanel::onChooseGroup>, kFirstGroupCommand, kLastGroupCommand},
    {WM_COMMAND, to<&CVxDaPanel::onTogglePanel>, kFirstPanelCommand, kLastPanelCommand},
    {WM_QRUI_ITEM_CLICKED, to<&CVxDaPanel::onItemClicked>},
};

const MessageMap CVxDaPanel::kMessageMap =
    makeMessageMap(&CQrUiPanel::GetThisMessageMap, kMessages);

const MessageMap& CVxDaPanel::GetMessageMap() const {
    return kMessageMap;
}

void CVxDaPanel::leaveService() {
    if (IsWindow(m_hWnd))
        DestroyWindow();
    for (CMenu* menu : {&m_toolPaletteMenu, &m_panelsMenu}) {
        if (menu->IsMenu() != 0)
            menu->DestroyMenu();
    }
}

BOOL CVxDaPanel::OnActivatePanel() {
    const ModuleCall call;
    if (m_toolPaletteGroup.isEmpty())
        return 0;
    return openToolPaletteGroup(m_toolPaletteGroup.text());
}

BOOL CVxDaPanel::AddContextMenuItems(CMenu& menu) {
    const ModuleCall call;
    if (m_toolPaletteMenu.IsMenu() != 0)
        m_toolPaletteMenu.DestroyMenu();
    if (menu.GetMenuItemCount() > 0)
        menu.AppendMenu(MF_SEPARATOR);
    m_toolPaletteMenu.CreatePopupMenu();
    appendPopup(menu, m_toolPaletteMenu, kStrToolPaletteMenu);
    fillToolPaletteMenu();
    appendCommand(menu, kCommandHidePanel, kStrHidePanel);
    appendCommand(menu, kCommandHelp, kStrHelp);
    if (!appendPanelsMenu(menu))
        return 0;
    menu.AppendMenu(MF_SEPARATOR);
    appendCommand(menu, kCommandCustomize, kStrCustomize);
    return 1;
}

void CVxDaPanel::fillToolPaletteMenu() {
    m_toolPaletteGroups.clear();
    VxTcUiGetToolPaletteGroups(kToolPaletteScheme, m_toolPaletteGroups);

    const VxString unoffered = loadDashboardString(kStrUnofferedToolPalette);
    const VxString& own = m_toolPaletteGroup.text();
    bool passedOver = false;
    bool ownFound = false;
    for (std::size_t i = 0; i < m_toolPaletteGroups.size(); ++i) {
        const VxString& group = m_toolPaletteGroups[i];
        // The group that is never offered has no line, but its index stays taken.
        if (!passedOver && CollateNoCase(group, unoffered) == 0) {
            passedOver = true;
            continue;
        }
        const bool isOwn = !own.empty() && group == own;
        appendGroupLine(i, isOwn);
        ownFound = ownFound || isOwn;
    }
    // A group that the scheme no longer has stays the panel's.
    if (!own.empty() && !ownFound) {
        m_toolPaletteGroups.push_back(own);
        appendGroupLine(m_toolPaletteGroups.size() - 1, true);
    }
    m_toolPaletteGroups.push_back(loadDashboardString(kStrNoToolPalette));
    appendGroupLine(m_toolPaletteGroups.size() - 1, own.empty());
}

void CVxDaPanel::appendGroupLine(std::size_t index, bool checked) {
    m_toolPaletteMenu.AppendMenu(MF_STRING | (checked ? MF_CHECKED : 0), kFirstGroupCommand + index,
                                 m_toolPaletteGroups[index].c_str());
}

bool CVxDaPanel::appendPanelsMenu(CMenu& menu) {
    auto* panelSet = dynamic_cast<CVxDaPanelSet*>(GetParent());
    if (panelSet == nullptr)
        return true;
    if (panelSet->buildPanelsMenu(&m_panelsMenu) == 0)
        return false;
    menu.AppendMenu(MF_SEPARATOR);
    appendPopup(menu, m_panelsMenu, kStrPanelsMenu);
    return true;
}

LRESULT CVxDaPanel::onHelp(WPARAM /*command*/, LPARAM /*unused*/) {
    vxedHelp(nullptr, kDashboardTopic, 0);
    return 0;
}

LRESULT CVxDaPanel::onHide(WPARAM /*command*/, LPARAM /*unused*/) {
    if (auto* panelSet = dynamic_cast<CVxDaPanelSet*>(GetParent())) {
        panelSet->hidePanel(this);
        panelSet->relayout();
    }
    ShowWindow(SW_HIDE);
    return 0;
}

LRESULT CVxDaPanel::onCustomize(WPARAM /*command*/, LPARAM /*unused*/) {
    if (VxCustomizationInterface* customization = zorqiGetCustomizationInterface()) {
        customization->selectPanel(m_menuGroup, GetID());
    }
    sendMenuMacro(L"_.CUI ");
    return 0;
}

LRESULT CVxDaPanel::onChooseGroup(WPARAM command, LPARAM /*unused*/) {
    const std::size_t index = LOWORD(command) - kFirstGroupCommand;
    if (index >= m_toolPaletteGroups.size())
        AfxThrowInvalidArgException();
    const VxString& group = m_toolPaletteGroups[index];
    if (Collate(group, loadDashboardString(kStrNoToolPalette)) == 0) {
        m_toolPaletteGroup.empty();
    } else {
        m_toolPaletteGroup.setText(group);
    }
    return 0;
}

LRESULT CVxDaPanel::onTogglePanel(WPARAM command, LPARAM /*unused*/) {
    if (auto* panelSet = dynamic_cast<CVxDaPanelSet*>(GetParent())) {
        panelSet->togglePanel(LOWORD(command));
    }
    return 0;
}

LRESULT CVxDaPanel::onItemClicked(WPARAM /*unused*/, LPARAM item) {
    return dispatchItemClick(reinterpret_cast<CQrUiToolPanelItem*>(item));
}
