#pragma once

#include <hostapi/types.h>

class CQrUiToolPanelItem;

/// How a gesture reaches the host's command processor.

/// Whether a command was running; it has then been told to stop, but has not stopped yet: the
/// processor comes to that when it next runs.
bool commandStopped();
/// Sends a command to the command line, for the user to answer there. Returns true.
bool sendHostCommand(const wchar_t* text);
/// Sends a macro to the document whose window is active, as a choice from a menu does.
void sendMenuMacro(const wchar_t* macro);
/// Sends an item's macro as `sendMenuMacro` does. Returns 0 for an item without data or macro.
int sendItemMacro(CQrUiToolPanelItem* item);
/// Runs a command with all its answers before it returns. `flag` is the host's own; 0 in the
/// lighting callbacks.
void runHostCommand(VxString text, int flag);
/// Whether paper space is active.
bool isPaperSpaceActive();
/// Whether the block editor is open.
bool isBlockEditorActive();
/// Activates the main window. Its answer; 0 if there is none.
LRESULT activateMainWindow();
