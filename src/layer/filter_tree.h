#pragma once

#include "core/module_window.h"
#include "layer/filter_menu.h"

#include <hostapi/window/tree_ctrl.h>

class CVxDaLayerFilterComboDropdown;
class CVxDaLayerFilterMgr;
class VxLyLayerFilter;

/// The tree of all layer filters. A click applies a filter, a right click opens the menu of what can be
/// done with one.
class CVxDaFilterTreeCtrl final : public ModuleWindow<CTreeCtrl> {
public:
    /// The dropdown that it stands in must outlive it.
    explicit CVxDaFilterTreeCtrl(CVxDaLayerFilterComboDropdown& dropdown);

    /// Shows the filters of the manager as they are now. False, with nothing shown, without a root.
    bool rebuildTree();

    // CWnd:
    const MessageMap& GetMessageMap() const override;

private:
    static const MessageEntry kMessages[];
    static const MessageMap kMessageMap;

    LRESULT onFocusLost(WPARAM unused, LPARAM unusedToo);
    LRESULT onLeftPress(WPARAM keys, LPARAM point);
    LRESULT onRightPress(WPARAM keys, LPARAM point);
    LRESULT onFilterMenu(WPARAM command, LPARAM unused);
    LRESULT onOwnNotice(WPARAM unused, LPARAM notice);

    bool hasFilters() const;
    HTREEITEM insertFilter(const VxLyLayerFilter& filter, HTREEITEM parent);
    HTREEITEM insertItem(const VxLyLayerFilter& filter, HTREEITEM parent);
    HTREEITEM findItem(const VxString& text) const;
    VxString selectedName() const;

    void onFilterCommand(UINT command);
    void runCommand(UINT command, const VxString& name);
    void changeLayers(UINT command, const VxString& name);
    void addGroup(const VxString& parentName);
    void convertToGroup(const VxString& name);
    void addSelection(const VxString& name, bool replace);
    void editSelectedLabel();
    void onLabelEdited(HTREEITEM item, const wchar_t* text);

    CVxDaLayerFilterComboDropdown& m_dropdown;
    CVxDaLayerFilterMgr* m_manager;  // not owned; null if the combos had none
    FilterMenu m_menu;
};
