#pragma once

#include "core/module_window.h"
#include "palette/item_index.h"
#include "palette/no_panel_link.h"
#include "palette/panel_record.h"

#include <hostapi/qrui18/panel_set.h>
#include <hostapi/types.h>
#include <hostapi/vxdashboard.h>
#include <hostapi/window/menu.h>

#include <string_view>
#include <vector>

/// The scrolling stack of panels. It knows a record for each panel of the host's menu data, makes a
/// panel when it is first shown, and sends the host's events to all custom controls.
class CVxDaPanelSet final : public ModuleWindow<CQrUiPanelSet> {
public:
    CVxDaPanelSet() = default;
    ~CVxDaPanelSet() override;

    /// Ends the window with all panels and controls. To be called before the object ends; what still
    /// runs of it stops at its next step.
    void leaveService();
    /// Reads menu data and saved state, and builds the panels that are to be shown. Returns 0 if
    /// the saved state could not be taken over, otherwise 1.
    BOOL load();
    /// Reads the saved state from the current profile into the records; what is on screen follows
    /// at the next refresh. Returns 1, also if nothing is saved; 0 if what is saved is no node.
    BOOL loadFromProfile();
    /// Writes the state into the current profile. Returns 0 without records and on failure.
    BOOL saveToProfile();

    /// Sends a message to all custom controls, in the order of their creation.
    void sendToControls(UINT message, WPARAM wParam, LPARAM lParam);
    /// Sends `WM_DA_VIEW_CHANGED` to all custom controls.
    void sendViewChanged();
    /// Sends the framework's idle update of commands to all custom controls.
    void sendIdleUpdate();
    /// The windows of custom controls in the order of their creation; some may be gone.
    const std::vector<HWND>& controlWindows() const { return m_controlWindows; }

    /// The items built for an ID, exact; null for an unknown one.
    const VxDaToolPanelItems* findToolPanelItems(std::wstring_view key) const {
        return m_itemsById.find(key);
    }

    /// Appends the panels on show, in the order of the records.
    void getVisiblePanels(VxDaPanelList& list) const;
    /// Takes a list over as the workspace's panels and refreshes. Returns 1.
    BOOL setVisiblePanels(const VxDaPanelList& list);

    /// Brings the panels on screen in line with the records; while the host's refresh flag is
    /// raised, with the workspace's panels. `reorder` takes over the workspace's order. Returns 1.
    BOOL refreshPanels(BOOL reorder);
    /// Shows or hides the panel of a record; makes it if need be. Returns 0 if that failed.
    BOOL showPanel(std::size_t index, bool show);
    /// Hides a panel; an unknown one is ignored.
    void hidePanel(const CVxDaPanel* panel);
    /// Shows or hides the panel of a menu command; one beyond the last record is ignored.
    void togglePanel(UINT command);
    /// Lays the panels out and reports the size to the palette.
    void relayout();

    /// Fills a menu with a line for each panel, checked while the panel is on show. What the menu
    /// held before is destroyed. Returns 0 for null and if no menu can be made.
    BOOL buildPanelsMenu(CMenu* menu);
    /// The popup of panels for the palette set's context menu.
    CMenu& panelsMenu() { return m_panelsMenu; }

    // CQrUiPanelSet:
    BOOL Load(IUnknown* storageNode) override;
    BOOL Save(IUnknown* storageNode) override;
    void UpdateLayout() override;
    BOOL OnPanelCollapsed(CQrUiPanel* panel) override;
    BOOL OnPanelExpanded(CQrUiPanel* panel) override;
    // CWnd:
    const MessageMap& GetMessageMap() const override;

private:
    static const MessageEntry kMessages[];
    static const MessageMap kMessageMap;

    LRESULT onDestroy(WPARAM unused, LPARAM unused2);
    LRESULT onSize(WPARAM kind, LPARAM size);
    LRESULT onMouseMove(WPARAM keys, LPARAM point);

    void readHostData();
    void deletePanels();
    bool makePanel(PanelRecord& record);
    bool fillPanel(const PanelRecord& record, CVxDaPanel& panel);
    void hideShownPanels();
    void showWorkspacePanels();
    void putOnShow(CVxDaPanel& panel);
    void takeOffShow(CVxDaPanel& panel);

    CMenu m_panelsMenu;
    VxDaNoPanelLink m_link;
    VxDaItemIndex m_itemsById;
    std::vector<HWND> m_controlWindows;
    VxDaPanelList m_visiblePanels;  // the workspace's, in its order
    PanelRecords m_panels;          // in the order on screen
};
