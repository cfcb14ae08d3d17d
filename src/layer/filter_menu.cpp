#include "layer/filter_menu.h"

#include "core/host_objects.h"
#include "core/resources.h"
#include "layer/layer_filter_mgr.h"

#include <hostapi/zorq/documents.h>
#include <hostapi/zorq/layers.h>

#include <span>

namespace {

struct MenuLine {
    UINT string;
    UINT command;
};

/// A line of the menu itself: a command, a popup with lines of its own, or a separator.
struct TopLine {
    UINT string = 0;  // 0: a separator
    UINT command = 0;
    std::span<const MenuLine> popup;
};

constexpr MenuLine kVisibility[] = {
    {262, kFilterLayersOn}, {263, kFilterLayersOff}, {264, kFilterFreeze}, {265, kFilterThaw}};
constexpr MenuLine kLock[] = {{267, kFilterLock}, {268, kFilterUnlock}};
constexpr MenuLine kViewport[] = {{270, kFilterFreezeInViewport}, {271, kFilterThawInViewport}};
constexpr MenuLine kIsolate[] = {{273, kFilterIsolateEverywhere}, {274, kFilterIsolateInViewport}};
constexpr MenuLine kSelect[] = {{280, kFilterAddSelection}, {281, kFilterReplaceBySelection}};

/// In order; their places are those that follow.
constexpr TopLine kTopLines[] = {
    {266, 0, kVisibility},
    {269, 0, kLock},
    {272, 0, kViewport},
    {275, 0, kIsolate},
    {},
    {276, kFilterNewGroup, {}},
    {277, kFilterConvertToGroup, {}},
    {278, kFilterRename, {}},
    {279, kFilterDelete, {}},
    {},
    {282, 0, kSelect},
};
constexpr UINT kVisibilityPlace = 0;
constexpr UINT kLockPlace = 1;
constexpr UINT kViewportPlace = 2;
constexpr UINT kIsolatePlace = 3;
constexpr UINT kSelectPlace = 10;

void append(CMenu& menu, const MenuLine& line) {
    menu.AppendMenu(MF_STRING, line.command, loadDashboardString(line.string).c_str());
}

bool isModelSpace() {
    const VxApDocument* document = currentDocument();
    const VxDbDatabase* database = document == nullptr ? nullptr : document->database();
    return database != nullptr && database->tilemode();
}

bool isGroup(const VxLyLayerFilter* filter) {
    return dynamic_cast<const VxLyLayerGroup*>(filter) != nullptr;
}

}  // namespace

void FilterMenu::open(VxLyLayerFilter* filter, CPoint place, CWnd* owner) {
    if (!m_menu.IsMenu() && !build())
        return;
    updateStates(filter);
    m_menu.TrackPopupMenu(0, place.x, place.y, owner);
}

bool FilterMenu::build() {
    if (!m_menu.CreatePopupMenu())
        return false;
    std::size_t nextPopup = 0;
    for (const TopLine& line : kTopLines) {
        if (line.string == 0) {
            m_menu.AppendMenu(MF_SEPARATOR);
        } else if (line.popup.empty()) {
            append(m_menu, {line.string, line.command});
        } else {
            CMenu& popup = m_popups[nextPopup++];
            popup.CreatePopupMenu();
            for (const MenuLine& inner : line.popup)
                append(popup, inner);
            m_menu.AppendMenu(MF_POPUP, reinterpret_cast<std::uintptr_t>(popup.m_hMenu),
                              loadDashboardString(line.string).c_str());
        }
    }
    return true;
}

void FilterMenu::enable(UINT item, UINT way, bool enabled) {
    m_menu.EnableMenuItem(item, way | (enabled ? MF_ENABLED : MF_GRAYED));
}

void FilterMenu::updateStates(VxLyLayerFilter* filter) {
    const bool found = filter != nullptr;
    const bool inLayout = found && !isModelSpace();
    for (const UINT place : {kVisibilityPlace, kLockPlace, kIsolatePlace})
        enable(place, MF_BYPOSITION, found);
    enable(kFilterIsolateInViewport, MF_BYCOMMAND, inLayout);
    enable(kViewportPlace, MF_BYPOSITION, inLayout);
    enable(kFilterDelete, MF_BYCOMMAND, found && filter->allowDelete());
    enable(kFilterRename, MF_BYCOMMAND, found && filter->allowRename());
    enable(kFilterNewGroup, MF_BYCOMMAND,
           found && (isGroup(filter) || filter->parent() == nullptr));
    enable(kFilterConvertToGroup, MF_BYCOMMAND,
           found && CVxDaLayerFilterMgr::canConvertToGroup(filter));
    enable(kSelectPlace, MF_BYPOSITION, isGroup(filter) && !vxedGetInvertLayerFilterFlag());
}
