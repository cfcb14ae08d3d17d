#pragma once

#include "core/module_window.h"
#include "layer/filter_dropdown.h"

#include <hostapi/qrui18/combo.h>

#include <memory>

class CVxDaLayerFilterMgr;
class VxLyLayerFilter;

/// Shows the layer filter in force as its one entry. A click opens the tree of all filters.
class CVxDaFilterComboCtrl final : public ModuleWindow<CQrUiComboCtrl> {
public:
    /// A new control with its window, as wide as `rect`. Null if the window can't be made.
    static std::unique_ptr<CWnd> make(CWnd* parent, const CRect& rect, UINT id);

    CVxDaFilterComboCtrl();
    ~CVxDaFilterComboCtrl() override;

    /// Shows a filter as the one entry.
    void show(CVxDaLayerFilterMgr& manager, const VxLyLayerFilter& filter);

    // CWnd:
    const MessageMap& GetMessageMap() const override;

private:
    static const MessageEntry kMessages[];
    static const MessageMap kMessageMap;

    LRESULT onCreate(WPARAM unused, LPARAM create);
    LRESULT toggleDropdown(WPARAM keys, LPARAM point);
    LRESULT onDropdownQuery(WPARAM unused, LPARAM unusedToo);
    LRESULT onThemeChanged(WPARAM wParam, LPARAM lParam);
    LRESULT onDocument(WPARAM unused, LPARAM document);
    LRESULT onSysVarChanged(WPARAM success, LPARAM name);
    LRESULT onCommandEnded(WPARAM unused, LPARAM name);

    bool isDropdownVisible() const;

    std::unique_ptr<CVxDaLayerFilterComboDropdown> m_dropdown;  // null until it is first opened
};

/// Shows a filter in all filter combos that have a window.
void showInFilterCombos(CVxDaLayerFilterMgr& manager, const VxLyLayerFilter& filter);
/// Ends the dropdowns that were opened again since; for the end of the module.
void endEarlierDropdowns();
