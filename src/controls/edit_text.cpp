#include "controls/edit_text.h"

#include <hostapi/window.h>

void SelectAllEditText(CWnd& edit) {
    constexpr LPARAM kToTheEnd = -1;
    edit.SendMessage(EM_SETSEL, 0, kToTheEnd);
    edit.SendMessage(EM_SCROLLCARET);
}

void giveBackToCorrect(CWnd& edit, const VxString& text) {
    edit.SetWindowText(text);
    SelectAllEditText(edit);
    edit.SetFocus();
}
