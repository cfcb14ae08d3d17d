#include "palette/dashboard.h"

#include "core/constants.h"
#include "core/message_table.h"
#include "core/message_values.h"
#include "core/resources.h"
#include "core/roof.h"
#include "core/string_ids.h"
#include "core/theme.h"
#include "palette/menu_commands.h"
#include "palette/menu_lines.h"
#include "palette/palette.h"
#include "palette/panel_set.h"
#include "palette/theme_message.h"
#include "palette/xml_node.h"

#include <hostapi/window.h>
#include <hostapi/zorq/commands.h>
#include <hostapi/zorq/frame_windows.h>

namespace {

struct BarSetup {
    CRect rect;  // pixels
    DWORD style;
    UINT toolkitStyle;
    DWORD dockingEdges;
    UINT firstDockBar;
};
constexpr BarSetup kSetup{
    .rect = {50, 50, 285, 350},
    .style = 0x400000,
    .toolkitStyle = 46,
    .dockingEdges = 0x5000,  // left and right
    .firstDockBar = 59421,   // the frame's right one
};

/// Pixels that a docked bar needs around its content.
constexpr int kDockedExtraHeight = 13;

/// Whether the bar went on or off the screen.
struct Appearance {
    bool shown;
    bool hidden;

    static Appearance from(LPARAM lParam) {
        const UINT flags = reinterpret_cast<const WINDOWPOS*>(lParam)->flags;
        return {(flags & SWP_SHOWWINDOW) != 0, (flags & SWP_HIDEWINDOW) != 0};
    }
};

void showHelp() {
    vxedHelp(nullptr, kDashboardTopic, 0);
}

bool endsWithSeparator(const CMenu& menu) {
    const int last = menu.GetMenuItemCount() - 1;
    return last >= 0 && (menu.GetMenuStateAt(last) & static_cast<int>(MF_SEPARATOR)) != 0;
}

void endWithOneSeparator(CMenu& menu) {
    if (endsWithSeparator(menu))
        menu.RemoveMenuAt(menu.GetMenuItemCount() - 1);
    if (menu.GetMenuItemCount() > 0 && !endsWithSeparator(menu))
        menu.AppendMenu(MF_SEPARATOR);
}

}  // namespace

constexpr MessageEntry CVxDaDashboard::kMessages[] = {
    {WM_CREATE, to<&CVxDaDashboard::onCreate>},
    {WM_WINDOWPOSCHANGED, to<&CVxDaDashboard::onWindowPosChanged>},
    {WM_COMMAND, to<&CVxDaDashboard::onHelp>, kCommandHelp, kCommandHelp},
    {WM_COMMAND, to<&CVxDaDashboard::onTogglePanel>, kFirstPanelCommand, kLastPanelCommand},
    {WM_IDLEUPDATECMDUI, to<&CVxDaDashboard::onIdleUpdate>},
};

const MessageMap CVxDaDashboard::kMessageMap =
    makeMessageMap(&CQrUiPaletteSet::GetThisMessageMap, kMessages);

const MessageMap& CVxDaDashboard::GetMessageMap() const {
    return kMessageMap;
}

CVxDaDashboard::CVxDaDashboard() : ModuleWindow(0), m_pPalette(new CVxDaPalette) {
    m_notYetAdded.reset(m_pPalette);
}

CVxDaDashboard::~CVxDaDashboard() = default;

void CVxDaDashboard::leaveService() {
    if (m_hIcon != nullptr)
        DestroyIcon(m_hIcon);
    m_hIcon = nullptr;
    if (IsWindow(m_hWnd))
        DestroyWindow();
    if (CVxDaPanelSet* panels = panelSet())
        panels->leaveService();
}

void CVxDaDashboard::create(const VxString& title) {
    CFrameWnd* frame = vxedGetZorqFrame();
    SetToolID(kDashboardToolId);
    Create(title, kSetup.style, kSetup.rect, frame, kSetup.toolkitStyle);
    EnableDocking(kSetup.dockingEdges);
    RestoreControlBar(kSetup.firstDockBar, kSetup.rect);
    if (frame != nullptr)
        frame->SetFocus();
    if (CQrUiTheme* theme = dashboardTheme())
        SetTheme(theme);
}

BOOL CVxDaDashboard::show(BOOL visible) {
    CFrameWnd* frame = vxedGetZorqFrame();
    if (frame == nullptr)
        return 0;
    if (IsFloating() != 0 && GetDockingFrame() == nullptr)
        return 0;
    frame->ShowControlBar(this, visible, 0);
    return 1;
}

BOOL CVxDaDashboard::loadPanels() {
    CVxDaPanelSet* panels = panelSet();
    if (panels == nullptr)
        return 0;
    const BOOL loaded = panels->load();
    sendTheme(*panels, dashboardTheme());
    return loaded;
}

void CVxDaDashboard::resizeToContent(CSize size) {
    if (Anchored() != 0)
        return;
    if (IsFloating() != 0 && dynamic_cast<CDockBar*>(GetParent()) != nullptr) {
        CFrameWnd* frame = GetParentFrame();
        if (frame == nullptr)
            return;
        frame->SetWindowPos(0, 0, frame->GetWindowRect().Width(), size.cy,
                            SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        return;
    }
    QrUiResizeControlBarVerticalSize(kDashboardToolId, size.cy + kDockedExtraHeight);
}

BOOL CVxDaDashboard::Load(IUnknown* storageNode) {
    const ModuleCall call;
    return withNodeErrorsCaught([this, storageNode] {
        const NodePtr node = queryNode(storageNode);
        return node == nullptr ? 0 : CQrUiPaletteSet::Load(node.get());
    });
}

BOOL CVxDaDashboard::Save(IUnknown* storageNode) {
    const ModuleCall call;
    return withNodeErrorsCaught([this, storageNode] {
        const NodePtr node = queryNode(storageNode);
        return node == nullptr ? 0 : CQrUiPaletteSet::Save(node.get());
    });
}

BOOL CVxDaDashboard::AddContextMenuItems(CMenu& menu) {
    const ModuleCall call;
    endWithOneSeparator(menu);
    CVxDaPanelSet* panels = panelSet();
    if (panels != nullptr && panels->buildPanelsMenu(&panels->panelsMenu()) != 0) {
        appendPopup(menu, panels->panelsMenu(), kStrPanelsMenu);
    }
    appendCommand(menu, kCommandHelp, kStrHelp);
    return 1;
}

void CVxDaDashboard::ThemeModified(int element) {
    const ModuleCall call;
    CQrUiPaletteSet::ThemeModified(element);
    if (CVxDaPanelSet* panels = panelSet())
        sendTheme(*panels, GetTheme());
}

BOOL CVxDaDashboard::PreTranslateMessage(MSG* msg) {
    const ModuleCall call;
    if (msg->message != WM_HELP)
        return CQrUiPaletteSet::PreTranslateMessage(msg);
    showHelp();
    return 1;
}

LRESULT CVxDaDashboard::onCreate(WPARAM /*unused*/, LPARAM create) {
    if (OnCreate(creationFrom(create)) == -1)
        return -1;
    loadIcon();
    if (CQrUiTheme* theme = dashboardTheme())
        createPalette(theme);
    return 0;
}

void CVxDaDashboard::loadIcon() {
    m_hIcon = LoadIcon(dashboardResources().library(), kIconDashboard);
    if (m_hIcon == nullptr)
        return;
    const auto icon = reinterpret_cast<LPARAM>(m_hIcon);
    SendMessage(WM_SETICON, ICON_BIG, icon);
    SendMessage(WM_SETICON, ICON_SMALL, icon);
}

void CVxDaDashboard::createPalette(CQrUiTheme* theme) {
    SetTheme(theme);
    if (m_pPalette->Create(this) == 0)
        return;
    AddPalette(m_notYetAdded.release());  // the toolkit takes it over
}

LRESULT CVxDaDashboard::onWindowPosChanged(WPARAM /*unused*/, LPARAM position) {
    const Appearance appearance = Appearance::from(position);
    const LRESULT answer = Default();
    DashboardRoof* roof = dashboardRoof();
    if (roof != nullptr && (appearance.shown || appearance.hidden))
        roof->visibilityChanged(appearance.shown ? 1 : 0);
    return answer;
}

LRESULT CVxDaDashboard::onHelp(WPARAM /*command*/, LPARAM /*unused*/) {
    showHelp();
    return 0;
}

LRESULT CVxDaDashboard::onTogglePanel(WPARAM command, LPARAM /*unused*/) {
    if (CVxDaPanelSet* panels = panelSet())
        panels->togglePanel(LOWORD(command));
    return 0;
}

LRESULT CVxDaDashboard::onIdleUpdate(WPARAM /*unused*/, LPARAM /*unused2*/) {
    if (CVxDaPanelSet* panels = panelSet())
        panels->sendIdleUpdate();
    return 0;
}

CVxDaPanelSet* CVxDaDashboard::panelSet() const {
    return m_pPalette->panelSet();
}
