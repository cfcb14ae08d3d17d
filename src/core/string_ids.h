#pragma once

#include <hostapi/types.h>

/// Numbers of the strings that no single control owns.

constexpr UINT kStrLocalShowCommand = 201;
constexpr UINT kStrDashboardTitle = 203;
constexpr UINT kStrPanelsMenu = 204;
constexpr UINT kStrHelp = 205;
constexpr UINT kStrToolPaletteMenu = 206;
constexpr UINT kStrHidePanel = 207;
constexpr UINT kStrNoPanelLink = 208;
constexpr UINT kStrNoToolPalette = 209;
constexpr UINT kStrLocalLockCommand = 220;
constexpr UINT kStrUnofferedToolPalette = 257;
constexpr UINT kStrNavigationLoadFailed = 1210;
constexpr UINT kStrViewportLocked = 1231;
constexpr UINT kStrCustomize = 1292;

/// The icon of the palette set.
constexpr UINT kIconDashboard = 220;
