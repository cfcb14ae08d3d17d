#include "controls/cmd_util.h"

#include "controls/variable_access.h"

#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/zorq.h>

namespace {

constexpr const wchar_t* kCancelTwice = L"\x03\x03";

void focusCommandLine() {
    if (CWnd* commandLine = vxedGetZorqDockCmdLine())
        commandLine->SetFocus();
}

/// Sends text to the current document's command line; nothing without the host's documents.
void sendToCurrentDocument(const wchar_t* text, bool activate, bool wrapUpInactive) {
    focusCommandLine();
    if (VxApDocManager* documents = vxDocManagerPtr()) {
        documents->sendToCommandLine(documents->curDocument(), text, activate, wrapUpInactive,
                                     true);
    }
}

}  // namespace

bool commandStopped() {
    if (readVariableFlag(L"CMDACTIVE") == 0)
        return false;
    sendToCurrentDocument(kCancelTwice, true, false);
    return true;
}

bool sendHostCommand(const wchar_t* text) {
    sendToCurrentDocument(text, false, true);
    return true;
}

void sendMenuMacro(const wchar_t* macro) {
    if (const VxApDocManager* documents = vxDocManagerPtr())
        vxedSendMenuStringToExecute(documents->mdiActiveDocument(), macro, 1);
}

int sendItemMacro(CQrUiToolPanelItem* item) {
    const VxToolPanelItemData* data = QrUiGetToolPanelItemData(item);
    if (data == nullptr || data->macro.empty())
        return 0;
    sendMenuMacro(data->macro.c_str());
    return 1;
}

void runHostCommand(VxString text, int flag) {
    do_cmd(text.data(), flag, 0, 1);
}

bool isPaperSpaceActive() {
    if (readVariableFlag(L"TILEMODE") == 1)
        return false;
    return readVariableFlag(L"CVPORT") == 1;
}

bool isBlockEditorActive() {
    return readVariableFlag(L"BLOCKEDITOR") == 1;
}

LRESULT activateMainWindow() {
    CWnd* window = AfxGetMainWnd();
    return window == nullptr ? 0 : window->SendMessage(WM_ACTIVATE, 1, 0);
}
