#pragma once

#include <hostapi/types.h>

/// Commands of the context menus of the palette set and its panels.

constexpr UINT kCommandHelp = 37330;
constexpr UINT kCommandHidePanel = 37331;
constexpr UINT kCommandCustomize = 37332;
/// One command for each tool palette group on offer, by its index.
constexpr UINT kFirstGroupCommand = 53246;
constexpr UINT kLastGroupCommand = 53346;
/// One command for each panel, by its index.
constexpr UINT kFirstPanelCommand = 53500;
constexpr UINT kLastPanelCommand = 53600;

/// The help topic of the whole dashboard.
constexpr const wchar_t* kDashboardTopic = L"DASHBOARD";
