#pragma once

#include <hostapi/types.h>

/// Names by which the module and the host know each other.

constexpr const wchar_t* kServiceName = L"ZorqVxDashboard";
constexpr const wchar_t* kCommandGroup = L"ZorqVxDashboard";
constexpr const wchar_t* kResourceLibraryFile = L"VxDashboardRes.dll";
constexpr const wchar_t* kModuleFile = L"VxDashboard.qlx";
constexpr const wchar_t* kIconLibrarySuffix = L"btn.xmx";
constexpr const wchar_t* kNavigationService = L"ZorqVmTools";
constexpr const wchar_t* kNavigationModuleFile = L"VxVmTools.qlx";
constexpr const wchar_t* kThemeName = L"ToolPanel";
constexpr const char* kEnablingVariable = "ENABLEDASHBOARD";
constexpr const wchar_t* kShowCommand = L"DASHBOARDOLD";
constexpr const wchar_t* kViewBackCommand = L"VIEWBACK";

/// The tool ID of the palette set: {12F4DCC5-8FDB-4937-8387-E628D5C2ABBF}.
constexpr GUID kDashboardToolId{
    0x12F4DCC5, 0x8FDB, 0x4937, {0x83, 0x87, 0xE6, 0x28, 0xD5, 0xC2, 0xAB, 0xBF}};

/// Elements of the theme.
constexpr int kThemeLinkFont = 2;
constexpr int kThemeControlFont = 3;
/// Data value of the theme that is reset when the palette set is made.
constexpr int kThemeDataValue = 1;
/// Data pointer of the theme under which the controls' font is published.
constexpr int kThemeFontPointer = 2;
