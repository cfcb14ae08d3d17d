#include "controls/cmd_util.h"

#include "controls/variable_access.h"

#include <hostapi/zorq.h>

namespace {

constexpr const wchar_t* kCancelTwice = L"\x03\x03";

void focusCommandLine() {
    if (CWnd* commandLine = vxedGetZorqDockCmdLine())
        commandLine->SetFocus();
}

}  // namespace

bool commandStopped() {
    if (readVariableFlag(L"CMDACTIVE") == 0)
        return false;
    focusCommandLine();
    VxApDocManager* documents = vxDocManagerPtr();
    documents->sendToCommandLine(documents->curDocument(), kCancelTwice, true, false, true);
    return true;
}

bool sendHostCommand(const wchar_t* text) {
    focusCommandLine();
    VxApDocManager* documents = vxDocManagerPtr();
    documents->sendToCommandLine(documents->curDocument(), text, false, true, true);
    return true;
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
