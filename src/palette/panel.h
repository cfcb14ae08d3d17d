#pragma once

#include "core/module_window.h"

#include <hostapi/qrui18/panel.h>
#include <hostapi/vxut.h>
#include <hostapi/window/menu.h>

/// One panel on screen: a titled block of tool panels, with a context menu, a tie to a tool palette
/// group, and the dispatch of clicks on its items.
class CVxDaPanel final : public ModuleWindow<CQrUiPanel> {
public:
    CVxDaPanel() = default;

    /// Ends the window and the menus. To be called before the object ends.
    void leaveService();

    /// The menu group that the panel comes from.
    VxString menuGroup() const { return m_menuGroup; }
    void setMenuGroup(const VxString& menuGroup) { m_menuGroup = menuGroup; }
    /// The tool palette group that the panel is tied to; empty for none.
    VxUtResString toolPaletteGroup() const { return m_toolPaletteGroup; }
    void setToolPaletteGroup(const VxUtResString& group) { m_toolPaletteGroup = group; }

    // CQrUiPanel:
    BOOL OnActivatePanel() override;
    BOOL AddContextMenuItems(CMenu& menu) override;
    // CWnd:
    const MessageMap& GetMessageMap() const override;

private:
    static const MessageEntry kMessages[];
    static const MessageMap kMessageMap;

    LRESULT onHelp(WPARAM command, LPARAM unused);
    LRESULT onHide(WPARAM command, LPARAM unused);
    LRESULT onCustomize(WPARAM command, LPARAM unused);
    LRESULT onChooseGroup(WPARAM command, LPARAM unused);
    LRESULT onTogglePanel(WPARAM command, LPARAM unused);
    LRESULT onItemClicked(WPARAM unused, LPARAM item);

    void fillToolPaletteMenu();
    void appendGroupLine(std::size_t index, bool checked);
    bool appendPanelsMenu(CMenu& menu);

    CMenu m_toolPaletteMenu;  // the popup of tool palette groups, remade for each context menu
    CMenu m_panelsMenu;       // the popup of all panels, remade for each context menu
    VxString m_menuGroup;
    VxUtResString m_toolPaletteGroup;
    CStringArray m_toolPaletteGroups;  // what the menu's group commands index into
};
