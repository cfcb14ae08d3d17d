#pragma once

#include "core/module_window.h"

#include <hostapi/qrui18/palette.h>

#include <memory>

class CVxDaPanelSet;

/// The one page of the dashboard: sizes its child, the panel set, and can swap it for a new one.
class CVxDaPalette final : public ModuleWindow<CQrUiPalette> {
public:
    CVxDaPalette();
    ~CVxDaPalette() override;

    /// The panel set; null only while it is being replaced.
    CVxDaPanelSet* panelSet() const { return m_pPanelSet.get(); }
    /// Ends the panel set with all panels and controls, and makes a new, empty one.
    void replacePanelSet();

    // CQrUiPalette:
    bool GetMinimumSize(CSize& size) override;
    bool GetMaximumSize(CSize& size) override;
    bool CanFrameworkTakeFocus() override;
    // CWnd:
    const MessageMap& GetMessageMap() const override;

private:
    static const MessageEntry kMessages[];
    static const MessageMap kMessageMap;

    LRESULT onCreate(WPARAM unused, LPARAM create);
    LRESULT onSize(WPARAM kind, LPARAM size);
    LRESULT onContentSize(WPARAM size, LPARAM unused);

    void makePanelSet();
    void createPanelSetWindow(const CRect& rect);
    bool hasVisiblePanel() const;

    std::unique_ptr<CVxDaPanelSet> m_pPanelSet;
    bool m_replacing = false;
};
