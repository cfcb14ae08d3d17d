#include "palette/panel_set.h"

#include "palette/menu_commands.h"
#include "palette/panel_storage.h"
#include "palette/xml_node.h"

#include "core/broadcast_messages.h"

#include "controls/variable_access.h"

#include <hostapi/zorq/profiles.h>

#include <cstdint>

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

const MessageMap CVxDaPanelSet::kMessageMap{&CQrUiPanelSet::GetThisMessageMap, kMessages,
                                            std::size(kMessages)};

const MessageMap& CVxDaPanelSet::GetMessageMap() const {
    static_assert(hostapi::isAscendingAndUnique(kMessages));
    return kMessageMap;
}

CVxDaPanelSet::~CVxDaPanelSet() {
    DestroyWindow();
    deletePanels();
}

BOOL CVxDaPanelSet::load() {
    m_itemsById.clear();
    m_controlWindows.clear();
    readHostData();
    if (loadFromProfile() == 0)
        return 0;
    return refreshPanels(1);
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
    const NodePtr node = queryNode(storageNode);
    if (node == nullptr)
        return 0;
    readSavedPanels(node.get(), m_panels);
    return 1;
}

BOOL CVxDaPanelSet::Save(IUnknown* storageNode) {
    return withNodeErrorsCaught([this, storageNode] {
        const NodePtr node = queryNode(storageNode);
        return node != nullptr && writeSavedPanels(node.get(), m_panels) ? 1 : 0;
    });
}

void CVxDaPanelSet::sendToControls(UINT message, WPARAM wParam, LPARAM lParam) {
    // By index: a control's handler may bring up a panel with further controls.
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

void CVxDaPanelSet::getVisiblePanels(VxDaPanelList& list) const {
    for (const PanelRecord& record : m_panels) {
        if (record.isOnShow())
            list.emplace_back(record.id, record.menuGroup);
    }
}

BOOL CVxDaPanelSet::setVisiblePanels(const VxDaPanelList& list) {
    m_visiblePanels = list;
    return refreshPanels(0);
}

BOOL CVxDaPanelSet::buildPanelsMenu(CMenu* menu) {
    if (menu == nullptr)
        return 0;
    if (menu->IsMenu() != 0)
        menu->DestroyMenu();
    if (menu->CreatePopupMenu() == 0)
        return 0;
    UINT command = kFirstPanelCommand;
    for (const PanelRecord& record : m_panels) {
        const UINT check = record.isOnShow() ? MF_CHECKED : 0;
        menu->AppendMenu(MF_STRING | check, command++, record.title.c_str());
    }
    return 1;
}

void CVxDaPanelSet::UpdateLayout() {
    CQrUiPanelSet::UpdateLayout();
    if (HasVisiblePanel() != 0) {
        m_link.hide();
    } else {
        m_link.show(*this);
    }
}

BOOL CVxDaPanelSet::OnPanelCollapsed(CQrUiPanel* /*panel*/) {
    relayout();
    return 1;
}

BOOL CVxDaPanelSet::OnPanelExpanded(CQrUiPanel* /*panel*/) {
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
