#pragma once

#include <hostapi/types.h>

class CVxDaControlMgr;
class VxDaManager;

/// The load message: brings the module up; no window is made yet.
void loadModule(void* appPacket);
/// The unload message: takes everything down. Safe in every state.
void unloadModule();

/// The dashboard manager; null while the module isn't loaded.
VxDaManager* dashboardManager();
/// Whether the dashboard is on screen.
bool isDashboardVisible();
/// The control manager; null while the module isn't loaded.
CVxDaControlMgr* controlManager();
/// The library of tool images; null if the host has none.
HINSTANCE iconLibrary();
