#pragma once

class CVxDaControlMgr;
class VxDaManager;

/// The load message: brings the module up; no window is made yet.
void loadModule(void* appPacket);
/// The unload message: takes everything down. Safe in every state.
void unloadModule();

/// The dashboard manager; null while the module isn't loaded.
VxDaManager* dashboardManager();
/// The control manager; null while the module isn't loaded.
CVxDaControlMgr* controlManager();
