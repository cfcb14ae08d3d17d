#pragma once

#include "core/module_window.h"

#include <hostapi/qrui18/palette_set.h>
#include <hostapi/types.h>

#include <memory>

class CVxDaPalette;
class CVxDaPanelSet;

/// The dashboard's window as the host's frame knows it: a dockable palette set with one palette.
class CVxDaDashboard final : public ModuleWindow<CQrUiPaletteSet> {
public:
    CVxDaDashboard();
    ~CVxDaDashboard() override;

    /// Ends the window with all that stands in it. To be called before the object ends.
    void leaveService();
    /// Creates the hidden window and places it in the host's frame. A failure shows as a null
    /// window.
    void create(const VxString& title);
    /// Shows or hides the bar. Returns 0 without a frame to do it.
    BOOL show(BOOL visible);
    /// Builds the panels. Returns 0 without a panel set or if its load failed.
    BOOL loadPanels();
    /// Fits the bar to the size in pixels that its panels take.
    void resizeToContent(CSize size);
    /// The palette, with or without a window.
    CVxDaPalette* palette() const { return m_pPalette; }

    // CQrUiPaletteSet:
    BOOL Load(IUnknown* storageNode) override;
    BOOL Save(IUnknown* storageNode) override;
    BOOL AddContextMenuItems(CMenu& menu) override;
    void ThemeModified(int element) override;
    // CWnd:
    BOOL PreTranslateMessage(MSG* msg) override;
    const MessageMap& GetMessageMap() const override;

private:
    static const MessageEntry kMessages[];
    static const MessageMap kMessageMap;

    LRESULT onCreate(WPARAM unused, LPARAM create);
    LRESULT onWindowPosChanged(WPARAM unused, LPARAM position);
    LRESULT onHelp(WPARAM command, LPARAM unused);
    LRESULT onTogglePanel(WPARAM command, LPARAM unused);
    LRESULT onIdleUpdate(WPARAM unused, LPARAM unused2);

    CVxDaPanelSet* panelSet() const;
    void loadIcon();
    void createPalette(CQrUiTheme* theme);

    CVxDaPalette* m_pPalette;                     // owned by the toolkit once it was added
    std::unique_ptr<CVxDaPalette> m_notYetAdded;  // the same palette until then
    HICON m_hIcon = nullptr;                      // ours; null for none
};
