#include "palette/item_images.h"
#include "palette/menu_commands.h"
#include "palette/panel_set.h"
#include "palette/theme_message.h"
#include "palette/tool_panel_builder.h"

#include "core/theme.h"

#include <hostapi/qrui18/messages.h>
#include <hostapi/zorq/menu_data.h>

#include <algorithm>
#include <utility>

/// The panel set's way from menu data and workspace to panels on screen.

namespace {

PanelRecord recordOf(const VxPanelData& data) {
    PanelRecord record;
    record.id = data.id;
    record.title = data.title;
    record.image = data.image;
    record.menuGroup = data.menuGroup;
    record.toolPanelIds = data.toolPanelIds;
    return record;
}

/// The panels that the current workspace shows; false without workspace data.
bool readWorkspacePanels(VxDaPanelList& list) {
    std::vector<VxWsPanelData> panels;
    if (!vxedGetWorkspacePanelData(panels))
        return false;
    list.clear();
    for (VxWsPanelData& panel : panels) {
        list.emplace_back(std::move(panel.panelId), std::move(panel.menuGroup));
    }
    return true;
}

/// The first record of a workspace's panel that has no place yet, -1 for none.
int findUnplaced(const PanelRecords& records, const std::vector<bool>& placed,
                 const VxString& menuGroup, const VxString& id) {
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (!placed[i] && records[i].id == id && records[i].menuGroup == menuGroup) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

}  // namespace

void CVxDaPanelSet::readHostData() {
    deletePanels();
    const VxPanelSetData* data = vxedGetPanelSetData();
    if (data == nullptr || data->empty())
        return;
    for (const VxPanelData* panel : *data) {
        if (panel != nullptr)
            m_panels.push_back(recordOf(*panel));
    }
    // Without workspace data the earlier list stays.
    readWorkspacePanels(m_visiblePanels);
}

void CVxDaPanelSet::deletePanels() {
    for (PanelRecord& record : m_panels) {
        if (record.panel != nullptr)
            RemovePanel(record.panel.get());
    }
    m_panels.clear();
}

BOOL CVxDaPanelSet::refreshPanels(BOOL reorder) {
    // Kept as it is: a panel on show loses its flag here and comes back only through the host's
    // flag, because who wants panels shown has to raise that flag first.
    if (GetPanelCount() != 0)
        hideShownPanels();
    const bool fromWorkspace = vxedGetPanelRefreshFromWS();
    if (fromWorkspace) {
        for (PanelRecord& record : m_panels)
            record.visible = false;
    }
    if (fromWorkspace || reorder != 0)
        orderByWorkspace(fromWorkspace);
    if (fromWorkspace) {
        vxedSetPanelRefreshFromWS(false);
    } else {
        for (std::size_t i = 0; i < m_panels.size(); ++i)
            showPanel(i, m_panels[i].visible);
    }
    relayout();
    return 1;
}

void CVxDaPanelSet::hideShownPanels() {
    for (PanelRecord& record : m_panels) {
        if (!record.isOnShow())
            continue;
        takeOffShow(*record.panel);
        record.visible = false;
    }
}

void CVxDaPanelSet::orderByWorkspace(bool fromWorkspace) {
    std::vector<std::size_t> order;
    std::vector<bool> placed(m_panels.size(), false);
    for (const auto& [id, menuGroup] : m_visiblePanels) {
        const int found = findUnplaced(m_panels, placed, menuGroup, id);
        if (found < 0)
            continue;
        const auto index = static_cast<std::size_t>(found);
        if (fromWorkspace)
            showFromWorkspace(index);
        order.push_back(index);
        placed[index] = true;
    }
    for (std::size_t i = 0; i < m_panels.size(); ++i) {
        if (!placed[i])
            order.push_back(i);
    }

    PanelRecords ordered;
    ordered.reserve(m_panels.size());
    for (const std::size_t index : order)
        ordered.push_back(std::move(m_panels[index]));
    m_panels.swap(ordered);
}

void CVxDaPanelSet::showFromWorkspace(std::size_t index) {
    // Kept as it is: the flag stays up when the panel can't be made, because the workspace wants
    // it shown at the next chance.
    m_panels[index].visible = true;
    if (!m_panels[index].isOnShow() && createPanel(index))
        putOnShow(*m_panels[index].panel);
}

BOOL CVxDaPanelSet::showPanel(std::size_t index, bool show) {
    if (m_panels[index].panel != nullptr && m_panels[index].isOnShow() == show)
        return 1;
    if (m_panels[index].panel == nullptr && !show)
        return 1;
    if (show) {
        if (!createPanel(index))
            return 0;
        putOnShow(*m_panels[index].panel);
    } else {
        takeOffShow(*m_panels[index].panel);
    }
    m_panels[index].visible = show;
    return 1;
}

void CVxDaPanelSet::putOnShow(CVxDaPanel& panel) {
    if (HasPanel(&panel) == 0)
        AddPanel(&panel);
    panel.ShowWindow(SW_SHOW);
}

void CVxDaPanelSet::takeOffShow(CVxDaPanel& panel) {
    panel.ShowWindow(SW_HIDE);
    RemovePanel(&panel);
}

void CVxDaPanelSet::hidePanel(const CVxDaPanel* panel) {
    for (std::size_t i = 0; i < m_panels.size(); ++i) {
        if (m_panels[i].panel.get() != panel)
            continue;
        showPanel(i, false);
        return;
    }
}

void CVxDaPanelSet::togglePanel(UINT command) {
    const std::size_t index = command - kFirstPanelCommand;
    if (index >= m_panels.size())
        return;
    showPanel(index, !m_panels[index].isOnShow());
    relayout();
}

void CVxDaPanelSet::relayout() {
    UpdateLayout();
    CWnd* palette = GetParent();
    if (palette == nullptr)
        return;
    const CRect rect = GetWindowRect();
    const UINT size = MAKELONG(static_cast<UINT>(rect.Width()), static_cast<UINT>(rect.Height()));
    palette->PostMessage(WM_QRUI_POSITION, size, 0);
}

bool CVxDaPanelSet::createPanel(std::size_t index) {
    if (m_panels[index].panel != nullptr)
        return true;
    auto newPanel = std::make_unique<CVxDaPanel>();
    PanelRecord& record = m_panels[index];
    newPanel->SetID(record.id);
    if (newPanel->Create(WS_CHILD, record.title, this) == 0)
        return false;
    CVxDaPanel& panel = *newPanel;
    panel.setMenuGroup(record.menuGroup);
    panel.setToolPaletteGroup(record.toolPaletteGroup);
    record.panel = std::move(newPanel);

    HBITMAP picture = loadPanelImage(record.image, record.menuGroup);
    if (picture != nullptr)
        panel.SetImage(kPanelImage, picture);
    VxDaToolPanelBuilder builder(m_itemsById, m_controlWindows, panel, GetClientRect());
    for (const VxString& toolPanelId : record.toolPanelIds) {
        const VxToolPanelData* data = vxedGetToolPanelData(record.menuGroup, toolPanelId);
        if (data != nullptr)
            builder.addToolPanel(*data, picture != nullptr);
    }
    sendTheme(panel, dashboardTheme());
    return true;
}
