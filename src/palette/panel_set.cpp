#include "palette/panel_set.h"

#include "controls/variable_access.h"
#include "core/broadcast_messages.h"
#include "core/message_table.h"
#include "core/theme.h"
#include "palette/host_panels.h"
#include "palette/item_images.h"
#include "palette/menu_commands.h"
#include "palette/panel_order.h"
#include "palette/panel_storage.h"
#include "palette/theme_message.h"
#include "palette/tool_panel_builder.h"
#include "palette/xml_node.h"

#include <hostapi/qrui18/messages.h>
#include <hostapi/zorq/menu_data.h>
#include <hostapi/zorq/profiles.h>

#include <algorithm>
#include <cstdint>
#include <utility>

namespace {

constexpr const wchar_t* kProfileVariable = L"CPROFILE";
constexpr const wchar_t* kDashboardNode = L"Dashboard";

enum class NodeUse { Read, Write };

/// The dashboard's node in the current profile; null without a profile, and for reading if nothing
/// is saved in it.
NodePtr openDashboardNode(NodeUse use) {
    const auto profile = readVariableText(kProfileVariable);
    if (!profile)
        return nullptr;
    const bool write = use == NodeUse::Write;
    VxApProfileManager* profiles = vxProfileManagerPtr();
    VxApProfileStorage* storage =
        profiles == nullptr ? nullptr : profiles->profileStorage(profile->c_str(), write);
    if (storage == nullptr)
        return nullptr;
    return NodePtr(write ? storage->createNode(kDashboardNode) : storage->openNode(kDashboardNode));
}

CPoint mousePoint(LPARAM lParam) {
    const auto bits = static_cast<std::uintptr_t>(lParam);
    return {static_cast<std::int16_t>(LOWORD(bits)), static_cast<std::int16_t>(HIWORD(bits))};
}

}  // namespace

constexpr MessageEntry CVxDaPanelSet::kMessages[] = {
    {WM_DESTROY, to<&CVxDaPanelSet::onDestroy>},
    {WM_SIZE, to<&CVxDaPanelSet::onSize>},
    {WM_MOUSEMOVE, to<&CVxDaPanelSet::onMouseMove>},
};

const MessageMap CVxDaPanelSet::kMessageMap =
    makeMessageMap(&CQrUiPanelSet::GetThisMessageMap, kMessages);

const MessageMap& CVxDaPanelSet::GetMessageMap() const {
    return kMessageMap;
}

CVxDaPanelSet::~CVxDaPanelSet() {
    leaveService();
}

void CVxDaPanelSet::leaveService() {
    if (IsWindow(m_hWnd))
        DestroyWindow();
    m_controlWindows.clear();
    deletePanels();
}

// Load and save

BOOL CVxDaPanelSet::load() {
    m_itemsById.clear();
    m_controlWindows.clear();
    readHostData();
    if (loadFromProfile() == 0)
        return 0;
    return refreshPanels(1);
}

void CVxDaPanelSet::readHostData() {
    deletePanels();
    // Without workspace data the earlier list stays.
    if (readPanelRecords(m_panels))
        readWorkspacePanels(m_visiblePanels);
}

void CVxDaPanelSet::deletePanels() {
    // Taken out first: a control that goes may call back for what is on show.
    PanelRecords records = std::exchange(m_panels, {});
    for (const auto& record : records) {
        if (record->panel != nullptr)
            RemovePanel(record->panel.get());
    }
    for (std::unique_ptr<PanelRecord>& record : records) {
        if (record->panel != nullptr) {
            record->panel->leaveService();
            freeAfterCall(std::move(record->panel));
        }
        freeAfterCall(std::move(record));
    }
}

BOOL CVxDaPanelSet::loadFromProfile() {
    const NodePtr node = openDashboardNode(NodeUse::Read);
    return node == nullptr ? 1 : Load(node.get());
}

BOOL CVxDaPanelSet::saveToProfile() {
    if (m_panels.empty())
        return 0;
    return withNodeErrorsCaught([this] {
        const NodePtr node = openDashboardNode(NodeUse::Write);
        if (node == nullptr)
            return 0;
        VxUt::RemoveChildren(node.get());
        return Save(node.get());
    });
}

BOOL CVxDaPanelSet::Load(IUnknown* storageNode) {
    const ModuleCall call;
    const NodePtr node = queryNode(storageNode);
    if (node == nullptr)
        return 0;
    readSavedPanels(node.get(), m_panels);
    return 1;
}

BOOL CVxDaPanelSet::Save(IUnknown* storageNode) {
    const ModuleCall call;
    return withNodeErrorsCaught([this, storageNode] {
        const NodePtr node = queryNode(storageNode);
        return node != nullptr && writeSavedPanels(node.get(), m_panels) ? 1 : 0;
    });
}

// The controls

void CVxDaPanelSet::sendToControls(UINT message, WPARAM wParam, LPARAM lParam) {
    // By index: a control's handler may bring up a panel with further controls, or end them all.
    for (std::size_t i = 0; i < m_controlWindows.size(); ++i) {
        if (m_controlWindows[i] == nullptr)
            continue;
        ::SendMessage(m_controlWindows[i], message, wParam, lParam);
    }
}

void CVxDaPanelSet::sendViewChanged() {
    sendToControls(WM_DA_VIEW_CHANGED, 0, 0);
}

void CVxDaPanelSet::sendIdleUpdate() {
    sendToControls(WM_IDLEUPDATECMDUI, 0, 0);
}

// The panels on show

void CVxDaPanelSet::getVisiblePanels(VxDaPanelList& list) const {
    for (const auto& record : m_panels) {
        if (record->isOnShow())
            list.emplace_back(record->id, record->menuGroup);
    }
}

BOOL CVxDaPanelSet::setVisiblePanels(const VxDaPanelList& list) {
    m_visiblePanels = list;
    return refreshPanels(0);
}

BOOL CVxDaPanelSet::refreshPanels(BOOL reorder) {
    // Kept as it is: a panel on show loses its flag here and comes back only through the host's
    // flag, because who wants panels shown has to raise that flag first.
    if (GetPanelCount() != 0)
        hideShownPanels();
    const bool fromWorkspace = vxedGetPanelRefreshFromWS();
    if (fromWorkspace)
        showWorkspacePanels();
    if (fromWorkspace || reorder != 0)
        orderByList(m_panels, m_visiblePanels);
    if (fromWorkspace) {
        vxedSetPanelRefreshFromWS(false);
    } else {
        for (std::size_t i = 0; i < m_panels.size(); ++i)
            showPanel(i, m_panels[i]->visible);
    }
    relayout();
    return 1;
}

void CVxDaPanelSet::hideShownPanels() {
    for (std::size_t i = 0; i < m_panels.size(); ++i) {
        PanelRecord& record = *m_panels[i];
        if (!record.isOnShow())
            continue;
        takeOffShow(*record.panel);
        record.visible = false;
    }
}

void CVxDaPanelSet::showWorkspacePanels() {
    for (const auto& record : m_panels)
        record->visible = false;
    for (PanelRecord* record : recordsInList(m_panels, m_visiblePanels)) {
        // Kept as it is: the flag stays up when the panel can't be made, because the workspace
        // wants it shown at the next chance.
        record->visible = true;
        if (!record->isOnShow() && makePanel(*record))
            putOnShow(*record->panel);
    }
}

BOOL CVxDaPanelSet::showPanel(std::size_t index, bool show) {
    PanelRecord& record = *m_panels[index];
    if (record.panel != nullptr && record.isOnShow() == show)
        return 1;
    if (record.panel == nullptr && !show)
        return 1;
    if (show) {
        if (!makePanel(record))
            return 0;
        putOnShow(*record.panel);
    } else {
        takeOffShow(*record.panel);
    }
    record.visible = show;
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
        if (m_panels[i]->panel.get() != panel)
            continue;
        showPanel(i, false);
        return;
    }
}

void CVxDaPanelSet::togglePanel(UINT command) {
    const std::size_t index = command - kFirstPanelCommand;
    if (index >= m_panels.size())
        return;
    showPanel(index, !m_panels[index]->isOnShow());
    relayout();
}

/// Whether the record has its panel then. What is called meanwhile may take the record away.
bool CVxDaPanelSet::makePanel(PanelRecord& record) {
    if (record.panel != nullptr)
        return true;
    auto newPanel = std::make_unique<CVxDaPanel>();
    newPanel->SetID(record.id);
    if (newPanel->Create(WS_CHILD, record.title, this) == 0)
        return false;
    CVxDaPanel& panel = *newPanel;
    panel.setMenuGroup(record.menuGroup);
    panel.setToolPaletteGroup(record.toolPaletteGroup);
    record.panel = std::move(newPanel);
    return fillPanel(record, panel);
}

bool CVxDaPanelSet::fillPanel(const PanelRecord& record, CVxDaPanel& panel) {
    HBITMAP picture = loadPanelImage(record.image, record.menuGroup);
    if (picture != nullptr)
        panel.SetImage(kPanelImage, picture);
    VxDaToolPanelBuilder builder(m_itemsById, m_controlWindows, panel, GetClientRect());
    for (const VxString& toolPanelId : record.toolPanelIds) {
        if (record.panel.get() != &panel)
            return false;
        const VxToolPanelData* data = vxedGetToolPanelData(record.menuGroup, toolPanelId);
        if (data != nullptr)
            builder.addToolPanel(*data, picture != nullptr);
    }
    sendTheme(panel, dashboardTheme());
    return record.panel.get() == &panel;
}

BOOL CVxDaPanelSet::buildPanelsMenu(CMenu* menu) {
    if (menu == nullptr)
        return 0;
    if (menu->IsMenu() != 0)
        menu->DestroyMenu();
    if (menu->CreatePopupMenu() == 0)
        return 0;
    UINT command = kFirstPanelCommand;
    for (const auto& record : m_panels) {
        const UINT check = record->isOnShow() ? MF_CHECKED : 0;
        menu->AppendMenu(MF_STRING | check, command++, record->title.c_str());
    }
    return 1;
}

// Layout

void CVxDaPanelSet::UpdateLayout() {
    const ModuleCall call;
    CQrUiPanelSet::UpdateLayout();
    if (HasVisiblePanel() != 0) {
        m_link.hide();
    } else {
        m_link.show(*this);
    }
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

BOOL CVxDaPanelSet::OnPanelCollapsed(CQrUiPanel* /*panel*/) {
    const ModuleCall call;
    relayout();
    return 1;
}

BOOL CVxDaPanelSet::OnPanelExpanded(CQrUiPanel* /*panel*/) {
    const ModuleCall call;
    relayout();
    return 1;
}

LRESULT CVxDaPanelSet::onDestroy(WPARAM /*unused*/, LPARAM /*unused2*/) {
    if (m_panelsMenu.IsMenu() != 0)
        m_panelsMenu.DestroyMenu();
    return Default();
}

LRESULT CVxDaPanelSet::onSize(WPARAM /*kind*/, LPARAM /*size*/) {
    const LRESULT answer = Default();
    m_link.place(*this);
    return answer;
}

LRESULT CVxDaPanelSet::onMouseMove(WPARAM /*keys*/, LPARAM point) {
    const LRESULT answer = Default();
    if (m_link.isOnShow() && !m_link.rectIn(*this).PtInRect(mousePoint(point)))
        SetArrowCursor();
    return answer;
}
