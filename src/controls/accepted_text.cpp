#include "controls/accepted_text.h"

#include "controls/edit_text.h"

#include <hostapi/window/wnd.h>

void AcceptedText::restore(CWnd& field) const {
    field.SetWindowText(m_text);
}

void AcceptedText::giveBack(CWnd& field) const {
    giveBackToCorrect(field, m_text);
}
