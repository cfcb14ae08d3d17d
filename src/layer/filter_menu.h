#pragma once

#include <hostapi/types.h>
#include <hostapi/window/geometry.h>
#include <hostapi/window/menu.h>

#include <array>

class CVxDaLayerFilterMgr;
class VxLyLayerFilter;

/// Commands of the filters' context menu.
constexpr UINT kFilterLayersOn = 11001;
constexpr UINT kFilterLayersOff = 11002;
constexpr UINT kFilterFreeze = 11003;
constexpr UINT kFilterThaw = 11004;
constexpr UINT kFilterLock = 11005;
constexpr UINT kFilterUnlock = 11006;
constexpr UINT kFilterFreezeInViewport = 11007;
constexpr UINT kFilterThawInViewport = 11008;
constexpr UINT kFilterIsolateInViewport = 11009;
constexpr UINT kFilterIsolateEverywhere = 11010;
constexpr UINT kFilterNewGroup = 11011;
constexpr UINT kFilterConvertToGroup = 11012;
constexpr UINT kFilterRename = 11013;
constexpr UINT kFilterDelete = 11014;
constexpr UINT kFilterAddSelection = 11015;
constexpr UINT kFilterReplaceBySelection = 11016;

/// The context menu of the filters. Built once, and kept.
class FilterMenu {
public:
    /// Opens the menu for a filter, null for none, at a point of the screen. A choice comes to the owner
    /// as `WM_COMMAND`.
    void open(VxLyLayerFilter* filter, CPoint place, CWnd* owner);

private:
    static constexpr std::size_t kPopupCount = 5;

    bool build();
    void updateStates(VxLyLayerFilter* filter);
    void enable(UINT item, UINT way, bool enabled);

    std::array<CMenu, kPopupCount> m_popups;  // their menus end with the one that they hang in
    CMenu m_menu;
};
