#include "workbench/toolkit/label_editor.h"

namespace workbench {

BOOL LabelEditor::PreTranslateMessage(MSG* msg) {
    if (msg->message != WM_KEYDOWN || (msg->wParam != VK_RETURN && msg->wParam != VK_ESCAPE))
        return 0;
    m_ended(msg->wParam == VK_RETURN ? End::Take : End::Drop);
    return 1;
}

LRESULT LabelEditor::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT answer = CWnd::WindowProc(message, wParam, lParam);
    if (message == WM_KILLFOCUS)
        m_ended(End::Take);
    return answer;
}

}  // namespace workbench
